// What the check says of configurations made up from a seed, held against the real reader.

#include "configurationfindings.h"
#include "configurationtext.h"
#include "configurationxml.h"
#include "losses.h"
#include "pvconfiguration.h"
#include "settingsinforce.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Keeps nothing.
class NoSink : public check::FindingSink
{
public:
    void take(const check::Finding & /*finding*/) override {}
};

/// Of these, in any order, configurations and all their mistakes are made.
const QByteArrayList textPieces{
    "palvestrin: {",
    "palvestrin",
    "doc: {",
    "doc",
    "logger: {",
    "};",
    "};\n",
    "}",
    ";",
    "{",
    ":",
    "=",
    "\"",
    "paperWidth",
    "40",
    "48",
    "topMargin",
    "level",
    "\"INFO\"",
    "\n",
    " ",
    "\n# x",
    "// ",
    "a",
    "\r\n",
    "printDate = true;",
    "paperWidth = ",
    ";\n",
    ".",
    "\xe8",
    "\xc3\xa8",
    "\xef\xbb\xbf",
    "level = \"\";",
    "other: {",
    "bin: { path = \"/\"; };",
};
const QByteArrayList xmlPieces{
    "<palvestrin>",
    "</palvestrin>",
    "<doc ",
    "</doc>",
    "/>",
    ">",
    "<logger ",
    "</logger>",
    "paperWidth='40' ",
    "paperWidth='4O' ",
    "topMargin='2' ",
    "level=\"INFO\" ",
    "level='' ",
    "<!-- x -->",
    "x",
    "&lt;",
    "\n",
    "<x/>",
    "<doc paperWidth='48'/>",
    "<?xml version='1.0'?>",
};

QByteArray soup(QRandomGenerator &random, const QByteArrayList &pieces, const QByteArray &front)
{
    QByteArray content = random.bounded(4) ? front : QByteArray();
    for (int i = random.bounded(20); i > 0; --i)
        content += pieces[random.bounded(int(pieces.size()))];
    return content;
}

/// The settings of a sound file, each with a value that makes sense.
struct Setting
{
    QByteArray block;
    QByteArray name;
    QByteArray value;
    QString key() const { return QString::fromLatin1("palvestrin." + block + '.' + name); }
};
const QList<Setting> soundSettings{
    {"logger", "level", "INFO"},        {"logger", "basedir", "/var/log"},    {"logger", "filename", "a.log"},
    {"doc", "paperWidth", "40"},        {"doc", "quantityFieldWidth", "3"},   {"doc", "printDate", "true"},
    {"receiptdoc", "paperWidth", "48"}, {"receiptdoc", "printTime", "false"},
};

QByteArray soundFile()
{
    QByteArray text = "palvestrin:\n{\n";
    for (qsizetype i = 0; i < soundSettings.size(); ++i) {
        const Setting &setting = soundSettings[i];
        const bool isFirst = i == 0 || soundSettings[i - 1].block != setting.block;
        const bool isLast = i + 1 == soundSettings.size() || soundSettings[i + 1].block != setting.block;
        if (isFirst)
            text += "    " + setting.block + ":\n    {\n";
        text += "        " + setting.name + " = \"" + setting.value + "\";\n";
        if (isLast)
            text += "    };\n\n";
    }
    return text + "};\n";
}

/// Takes a delimiter or a line end out of a file, or puts something between two of its pieces.
QByteArray spoiled(QByteArray content, QRandomGenerator &random)
{
    static const QByteArrayList additions{
        "# a remark\n", "// ", "# a: b\n", "# a = b\n", "/* x */", ";",     "}",    "{",     ":", "=",
        "\"",           "};",  "note ",    "\n",        "a.",      "# }\n", "x: {", "a = 1;"};
    const QByteArrayView delimiters(";:={}\"\n");
    QList<qsizetype> places;
    for (qsizetype at = 0; at < content.size(); ++at) {
        if (delimiters.contains(content[at]))
            places += at;
    }
    if (places.isEmpty())
        return content;
    const qsizetype place = places[random.bounded(int(places.size()))];
    if (content[place] == '"' || random.bounded(2)) // beside a quote it would change the value itself
        return content.remove(place, 1);
    return content.insert(place + random.bounded(2), additions[random.bounded(int(additions.size()))]);
}

} // namespace

class ConfigurationLawTest : public QObject
{
    Q_OBJECT

private:
    static void compareValues(const check::SettingsInForce &settings, const libconfig::Config &configuration,
                              const QByteArray &content, int &found)
    {
        for (const knownkeys::Key &key : knownkeys::all()) {
            const QString expected = configuration.lookup(key.name);
            found += expected.isEmpty() ? 0 : 1;
            if (settings.textOf(key.name) == expected)
                continue;
            qWarning("%s in:\n%s", qPrintable(key.name), content.constData());
            QCOMPARE(settings.textOf(key.name), expected);
        }
    }

private Q_SLOTS:
    void theValuesAreThoseOfTheReader()
    {
        QRandomGenerator random(20061115);
        NoSink sink;
        int found = 0;
        for (int round = 0; round < 2500; ++round) {
            const QByteArray content = soup(random, textPieces, "palvestrin: { doc: { paperWidth = 44; ");
            check::SettingsInForce settings;
            check::checkConfigurationText(content, settings, sink);
            compareValues(settings, PVConfiguration(content, u"a"_s), content, found);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(found > 800, qPrintable(QString::number(found)));
    }

    void theValuesInXmlAreThoseOfTheReader()
    {
        QRandomGenerator random(20061116);
        NoSink sink;
        int found = 0;
        for (int round = 0; round < 2000; ++round) {
            QByteArray content = soup(
                random, xmlPieces, random.bounded(2) ? "<palvestrin>" : "<palvestrin><doc topMargin='3'/>");
            content += random.bounded(2) ? "</palvestrin>" : "";
            check::SettingsInForce settings;
            check::checkConfigurationXml(content, settings, sink);
            libconfig::Config configuration;
            configuration.readContent(content, u"a"_s, u"xml"_s);
            compareValues(settings, configuration, content, found);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(found > 40, qPrintable(QString::number(found)));
    }

    /// Each value is the number of its line, so a message can be held against what the reader returns.
    void theOneThatCountsIsTheReaders()
    {
        QRandomGenerator random(20061117);
        static const QRegularExpression told(
            u"this value \"(.*)\" does not count, the one in line (\\d+) does"_s);
        for (int round = 0; round < 200; ++round) {
            QByteArray content = "palvestrin: {\ndoc: {\n";
            for (int line = 3; line < 12; ++line) {
                const bool isEmpty = random.bounded(3) == 0;
                content += random.bounded(3)
                               ? "topMargin = \"" + (isEmpty ? "" : QByteArray::number(line)) + "\";\n"
                               : QByteArray("}; doc: {\n");
            }
            content += "printGeometry = true; }; };";
            for (const check::Finding &finding : ConfigurationFindings(content).list) {
                const QRegularExpressionMatch match = told.match(finding.message);
                if (match.hasMatch() && !match.captured(1).isEmpty())
                    QVERIFY(match.captured(1) !=
                            PVConfiguration(content, u"a"_s).lookup(u"palvestrin.doc.topMargin"_s));
            }
            QVERIFY2(lastOneCounts(content), content.constData());
        }
    }

    /// Where a place or two are spoiled and nothing is said, everything is still found.
    void whereNothingIsToldNothingIsLost()
    {
        QRandomGenerator random(20061118);
        QCOMPARE(ConfigurationFindings(soundFile()).asText(), QByteArray());
        int silent = 0;
        for (int round = 0; round < 2000; ++round) {
            QByteArray content = soundFile();
            for (int i = random.bounded(1, 3); i > 0; --i)
                content = spoiled(content, random);
            if (!ConfigurationFindings(content).list.empty())
                continue;
            ++silent;
            const PVConfiguration configuration(content, u"a"_s);
            for (const Setting &setting : soundSettings) {
                if (configuration.lookup(setting.key()) != QString::fromLatin1(setting.value))
                    qWarning("%s in:\n%s", qPrintable(setting.key()), content.constData());
                QCOMPARE(configuration.lookup(setting.key()), QString::fromLatin1(setting.value));
            }
        }
        QVERIFY2(silent > 100 && silent < 1000, qPrintable(QString::number(silent)));
    }

    /// What keeps `palvestrin config set` from writing is found here too.
    void whatWritingWouldLoseIsTold()
    {
        QRandomGenerator random(20061119);
        int losing = 0;
        for (int round = 0; round < 2000; ++round) {
            const QByteArray content =
                "palvestrin: { doc: { " + soup(random, textPieces, " paperWidth = 44; ");
            const std::vector<Loss> losses = lossesInText(content);
            if (losses.empty())
                continue;
            ++losing;
            if (ConfigurationFindings(content).list.empty())
                qWarning("%s in:\n%s", qPrintable(losses.front().what), content.constData());
            QVERIFY(!ConfigurationFindings(content).list.empty());
        }
        QVERIFY2(losing > 500, qPrintable(QString::number(losing)));
    }

private:
    /// Follows what is said of one key from value to value, to the one that counts in the end.
    static bool lastOneCounts(const QByteArray &content)
    {
        static const QRegularExpression told(u"the one in line (\\d+) does"_s);
        QSet<qint64> lost;
        QSet<qint64> counting;
        for (const check::Finding &finding : ConfigurationFindings(content).list) {
            if (finding.check->id != "key-twice"_L1)
                continue;
            lost += finding.place.line;
            counting += told.match(finding.message).captured(1).toLongLong();
        }
        const QSet<qint64> left = counting - lost;
        if (left.isEmpty())
            return lost.isEmpty();
        const QString value = PVConfiguration(content, u"a"_s).lookup(u"palvestrin.doc.topMargin"_s);
        const QByteArray line = content.split('\n')[*left.begin() - 1];
        return left.size() == 1 && line == "topMargin = \"" + value.toLatin1() + "\";";
    }
};

QTEST_GUILESS_MAIN(ConfigurationLawTest)
#include "configurationlaw_test.moc"
