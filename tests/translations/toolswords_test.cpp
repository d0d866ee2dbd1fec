// The words of the programs for people: every text of the sources and the tables has its translation in every
// catalogue, and no catalogue has one that nobody says.

#include "cataloguefile.h"
#include "knownkeys.h"
#include "printmethods.h"
#include "usercatalogue.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList languages{u"it"_s, u"de"_s, u"fr"_s, u"es"_s};

QString sourcePath(const QString &language)
{
    return QStringLiteral(SOURCE_FOLDER "/translations/palvestrin-tools_%1.ts").arg(language);
}

QString named(const QString &context, const QString &text)
{
    return context + u": "_s + text;
}

QSet<QString> textsOf(const QString &catalogue)
{
    QSet<QString> texts;
    for (const CatalogueEntry &entry : readCatalogue(catalogue))
        texts += named(entry.context, entry.source);
    return texts;
}

/// Words that every language has; a number or a word of the file needs no translation.
bool isSpoken(const QString &text)
{
    static const QRegularExpression word(u"[a-z]"_s);
    return text.contains(word);
}

QSet<QString> textsOfTables()
{
    QSet<QString> texts;
    for (const knownkeys::Key &key : knownkeys::all()) {
        for (const QString &text : {key.meaning, key.whenMissing, key.readBy}) {
            if (isSpoken(text))
                texts += named(u"Settings"_s, text);
        }
    }
    for (const vocabulary::PrintMethod &method : vocabulary::printMethods)
        texts += named(u"Settings"_s, method.title);
    return texts;
}

/// The placeholders of a text, and whether it ends in an ellipsis.
QStringList form(const QString &text)
{
    static const QRegularExpression placeholder(u"%[0-9]|\\[\\*\\]|\\*\\.[a-z]+"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(text))
        found += match.captured();
    found.sort();
    return found << (text.endsWith(u'\u2026') ? u"\u2026"_s : QString()) << QString::number(text.count(u'&'));
}

} // namespace

class ToolsWordsTest : public QObject
{
    Q_OBJECT

private:
    QSet<QString> spoken;

private Q_SLOTS:
    void initTestCase()
    {
        const QTemporaryDir folder;
        const QString found = folder.filePath(u"found.ts"_s);
        QProcess lupdate;
        lupdate.setWorkingDirectory(QStringLiteral(SOURCE_FOLDER));
        lupdate.start(QStringLiteral(LUPDATE), {u"-silent"_s, u"window"_s, u"settings"_s, u"check"_s,
                                                u"paper"_s, u"tools/listing.cpp"_s, u"-ts"_s, found});
        QVERIFY(lupdate.waitForFinished(60'000));
        QCOMPARE(lupdate.exitCode(), 0);
        spoken = textsOf(found);
        QVERIFY2(spoken.size() > 150, "the texts of the sources are no longer found");
        spoken += textsOfTables();
    }

    void nothingIsMissingAndNothingUnused_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : languages)
            QTest::newRow(qPrintable(language)) << language;
    }
    void nothingIsMissingAndNothingUnused()
    {
        QFETCH(QString, language);
        const QSet<QString> translated = textsOf(sourcePath(language));
        QStringList missing = (spoken - translated).values();
        QStringList unused = (translated - spoken).values();
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'|')));
        QVERIFY2(unused.isEmpty(), qPrintable(unused.join(u'|')));
    }

    void everyTranslationHasTheFormOfItsText_data() { nothingIsMissingAndNothingUnused_data(); }
    void everyTranslationHasTheFormOfItsText()
    {
        QFETCH(QString, language);
        for (const CatalogueEntry &entry : readCatalogue(sourcePath(language))) {
            QVERIFY2(entry.finished && !entry.translation.isEmpty(), qPrintable(entry.source));
            QCOMPARE(form(entry.translation), form(entry.source));
        }
    }

    void noSignStandsAloneOnALine()
    {
        static const QRegularExpression loose(u"\u00ab | \u00bb| [:;?!]| %(?![0-9])"_s);
        for (const CatalogueEntry &entry : readCatalogue(sourcePath(u"fr"_s)))
            QVERIFY2(!entry.translation.contains(loose), qPrintable(entry.translation));
        static const QRegularExpression percent(u" %(?![0-9])"_s);
        for (const QString &language : languages) {
            for (const CatalogueEntry &entry : readCatalogue(sourcePath(language)))
                QVERIFY2(!entry.translation.contains(percent), qPrintable(entry.translation));
        }
    }

    void theTablesSpeakTheLanguage()
    {
        QTranslator catalogue;
        QVERIFY(catalogue.load(QStringLiteral(BUILT_CATALOGUES "/palvestrin-tools_de")));
        QCoreApplication::installTranslator(&catalogue);
        QCOMPARE(inUserLanguage(knownkeys::find(u"palvestrin.doc.printTable"_s)->meaning),
                 u"druckt den Tisch der Bestellung"_s);
    }
};

QTEST_GUILESS_MAIN(ToolsWordsTest)
#include "toolswords_test.moc"
