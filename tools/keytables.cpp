#include "keytables.h"

#include "knownkeys.h"
#include "printmethods.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The print methods of a kind, each as `shown` shows it.
QString methodsOf(const vocabulary::DocumentKind &kind, QString (*shown)(const vocabulary::PrintMethod &))
{
    QStringList methods;
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods) {
        if (method.kind == kind.name)
            methods += shown(method);
    }
    return methods.join(", "_L1);
}

QString tableRow(const QStringList &cells)
{
    return "| "_L1 + cells.join(" | "_L1) + " |\n"_L1;
}

QString tableHead(const QStringList &titles)
{
    return tableRow(titles) + u'|' + u"---|"_s.repeated(titles.size()) + u'\n';
}

QString code(QLatin1StringView text)
{
    return u'`' + text + u'`';
}

QString methodAsCode(const vocabulary::PrintMethod &method)
{
    return code(method.name);
}

QString titleAndName(const vocabulary::PrintMethod &method)
{
    return u"%1 (%2)"_s.arg(method.title, method.name);
}

/// Who asks for a setting, each print method as `quote` and the name and `quote`.
QString readersOf(const vocabulary::DocumentSetting &setting, const QString &quote)
{
    const QStringList methods = knownkeys::methodsUsing(setting);
    if (!methods.isEmpty())
        return quote + methods.join(quote + ", "_L1 + quote) + quote;
    return setting.readBy == "printing"_L1 ? u"no print method"_s : QString(setting.readBy);
}

QString applicationKeysTable()
{
    QString table = tableHead({u"Key"_s, u"Meaning"_s, u"When missing"_s, u"Read by"_s});
    for (const vocabulary::ApplicationKey &key : vocabulary::applicationKeys)
        table += tableRow({code(key.name), key.meaning, key.whenMissing, key.readBy});
    return table;
}

QString documentBlocksTable()
{
    QString table = tableHead({u"Block"_s, u"Kind"_s, u"Print methods"_s});
    for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
        table += tableRow({code(kind.block), kind.name, methodsOf(kind, methodAsCode)});
    }
    return table;
}

QString documentSettingsTable()
{
    QString table = tableHead({u"Setting"_s, u"Meaning"_s, u"When missing"_s, u"Consulted by"_s});
    for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
        table += tableRow({code(setting.name), setting.meaning, knownkeys::whenMissing(setting.kind),
                           readersOf(setting, u"`"_s)});
    }
    return table;
}

/// Text as the manual's language wants it.
QString manualText(QString text)
{
    text.replace(u'\\', "\\e"_L1).replace(u'-', "\\-"_L1);
    return text.startsWith(u'.') || text.startsWith(u'\'') ? "\\&"_L1 + text : text;
}

QString manualEntry(const QString &name, const QString &value, const QString &text)
{
    const QString tag = value.isEmpty() ? ".B "_L1 + name : ".BI "_L1 + name + " \" = "_L1 + value + u'"';
    return ".TP\n"_L1 + tag + u'\n' + manualText(text) + u'\n';
}

/// What may stand behind the "=".
QString valueInManual(vocabulary::ValueKind kind)
{
    QStringList words;
    for (const QLatin1StringView word : vocabulary::wordsOf(kind))
        words += word;
    if (!words.isEmpty())
        return words.join(u'|');
    const bool isNumber = kind == vocabulary::ValueKind::Count || kind == vocabulary::ValueKind::Width;
    return isNumber ? u"NUMBER"_s : u"TEXT"_s;
}

QString applicationKeysChapter()
{
    QString chapter = u".SH SETTINGS OF THE APPLICATION\n"_s;
    for (const vocabulary::ApplicationKey &key : vocabulary::applicationKeys) {
        chapter += manualEntry(
            key.name, valueInManual(key.kind),
            u"%1; when missing: %2. Read by: %3."_s.arg(key.meaning, key.whenMissing, key.readBy));
    }
    return chapter;
}

QString documentBlocksChapter()
{
    QString chapter = u".SH BLOCKS OF THE DOCUMENTS\n"_s;
    for (const vocabulary::DocumentKind &kind : vocabulary::documentKinds) {
        const QString methods = methodsOf(kind, titleAndName);
        chapter += manualEntry("palvestrin."_L1 + kind.block, {}, methods + u'.');
    }
    return chapter;
}

QString documentSettingsChapter()
{
    QString chapter = u".SH SETTINGS OF A DOCUMENT\n"_s;
    for (const vocabulary::DocumentSetting &setting : vocabulary::documentSettings) {
        chapter +=
            manualEntry(setting.name, valueInManual(setting.kind),
                        u"%1; when missing: %2. Consulted by: %3."_s.arg(
                            setting.meaning, knownkeys::whenMissing(setting.kind), readersOf(setting, {})));
    }
    return chapter;
}

} // namespace

QString keysAsMarkdown()
{
    return applicationKeysTable() + u'\n' + documentBlocksTable() + u'\n' + documentSettingsTable();
}

QString keysAsManual()
{
    return applicationKeysChapter() + documentBlocksChapter() + documentSettingsChapter();
}
