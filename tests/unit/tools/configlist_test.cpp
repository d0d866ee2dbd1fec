// What palvestrin config list and show find, and what they keep to themselves.

#include "program.h"
#include "scratchfolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ConfigListTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder folder;

    /// Runs `palvestrin config` with `words` on a file of that content.
    QByteArray config(const QByteArray &content, const QStringList &words) const
    {
        const QString path = folder.write(u"c.conf"_s, content);
        const QStringList command = QStringList{u"config"_s} + words + QStringList{u"--file"_s, path};
        const ProgramRun run =
            runProgram(QStringLiteral(PALVESTRIN_PROGRAM), command, bareEnvironment(folder.path()));
        return run.standardOutput + run.standardError;
    }
    QStringList names(const QString &name) const
    {
        return QString::fromUtf8(config("", {u"list"_s, u"--names"_s, name}))
            .split(u'\n', Qt::SkipEmptyParts);
    }

private Q_SLOTS:
    void theMeaningsAreInTheUsersLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("meaning");
        QTest::newRow("none") << u"tlh"_s << u"print the order's table; when missing: off"_s;
        QTest::newRow("it") << u"it"_s << u"stampa il tavolo dell\u2019ordine; se manca: disattivato"_s;
        QTest::newRow("de") << u"de"_s << u"druckt den Tisch der Bestellung; wenn es fehlt: aus"_s;
        QTest::newRow("fr")
            << u"fr"_s
            << u"imprime la table de la commande\u202f; s\u2019il manque\u00a0: d\u00e9sactiv\u00e9"_s;
        QTest::newRow("es") << u"es"_s << u"imprime la mesa del pedido; si falta: desactivado"_s;
    }
    void theMeaningsAreInTheUsersLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, meaning);
        const ScratchFolder home;
        const ProgramRun run = runProgram(
            QStringLiteral(PALVESTRIN_PROGRAM), {u"config"_s, u"list"_s, u"palvestrin.doc.printTable"_s},
            bareEnvironment(home.path()) << u"LC_ALL=en_US.UTF-8"_s << u"LANGUAGE="_s + language);
        QVERIFY2(QString::fromUtf8(run.standardOutput).contains(meaning), run.standardOutput);
    }

    void whatIsWrongWithAKeyIsInTheUsersLanguageAndEnglishInJson()
    {
        const ScratchFolder home;
        const QString file = home.write(
            u"c.conf"_s,
            "palvestrin: { doc: { printTabel = 1; mine_and_only_mine = 2; }; }; later: { it = 3; };");
        const auto list = [&](const QStringList &options) {
            const ProgramRun run =
                runProgram(QStringLiteral(PALVESTRIN_PROGRAM),
                           QStringList{u"config"_s, u"list"_s} + options + QStringList{u"--file"_s, file},
                           bareEnvironment(home.path()) << u"LC_ALL=en_US.UTF-8"_s << u"LANGUAGE=de"_s);
            return QString::fromUtf8(run.standardOutput);
        };
        const QString text = list({});
        QVERIFY2(
            text.contains(u"kein Programm liest das; meinten Sie palvestrin.doc.printTable?\n"_s) &&
                text.contains(u"palvestrin.doc.mine_and_only_mine = 2\n    kein Programm liest das\n"_s) &&
                text.contains(u"nie gefunden: Gesucht wird nur im ersten Block der Datei\n"_s),
            qPrintable(text));
        const QString json = list({u"--json"_s});
        QVERIFY2(json.contains("\"no program reads this; did you mean palvestrin.doc.printTable?\""_L1) &&
                     json.contains("\"no program reads this\""_L1) &&
                     json.contains("\"never found: only the first top-level block is searched\""_L1),
                 qPrintable(json));
    }

    void aNameIsABlockASettingOrABeginning_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("found");
        const QStringList database{u"palvestrin.db.dbname"_s, u"palvestrin.db.username"_s,
                                   u"palvestrin.db.password"_s, u"palvestrin.db.hostname"_s};
        QStringList widths;
        for (const QString &kind : {u""_s, u"prefiscal"_s, u"fiscal"_s, u"receipt"_s, u"invoice"_s,
                                    u"delivery"_s, u"report"_s, u"sold"_s})
            widths += u"palvestrin.%1doc.paperWidth"_s.arg(kind);
        const auto row = [](const QString &name, const QStringList &found) {
            QTest::newRow(qPrintable(name)) << name << found;
        };
        row(u"palvestrin.db"_s, database);
        row(u"palvestrin.db."_s, database);
        row(u"db"_s, database);
        row(u"DB"_s, database);
        row(u"palvestrin.db.pass"_s, {u"palvestrin.db.password"_s});
        row(u"db.pass"_s, {u"palvestrin.db.password"_s});
        row(u"paperWidth"_s, widths);
        row(u"paperwidth"_s, widths);
        row(u"paperW"_s, widths);
        row(u"receiptdoc.paperWidth"_s, {u"palvestrin.receiptdoc.paperWidth"_s});
        row(u"logger.f"_s, {u"palvestrin.logger.filename"_s});
    }
    void aNameIsABlockASettingOrABeginning()
    {
        QFETCH(QString, name);
        QTEST(names(name), "found");
    }

    /// "doc" is a block, though other blocks end in it, and "receipt" the beginning of one.
    void blocks()
    {
        const QStringList ofOrder = names(u"doc"_s);
        QCOMPARE(ofOrder.filter(u"palvestrin.doc."_s), ofOrder);
        QVERIFY(ofOrder.contains(u"palvestrin.doc.printNote"_s));
        const QStringList ofReceipt = names(u"receiptdoc"_s);
        QCOMPARE(ofReceipt.filter(u"palvestrin.receiptdoc."_s), ofReceipt);
        QCOMPARE(names(u"receipt"_s), ofReceipt);
        QCOMPARE(ofReceipt.size(), ofOrder.size());
    }

    void whatNamesNothingIsTold()
    {
        QCOMPARE(config("", {u"list"_s, u"palvestrin.receitdoc.paperWidth"_s}),
                 "palvestrin: error: no program reads \"palvestrin.receitdoc.paperWidth\"; did you mean "
                 "\"palvestrin.receiptdoc.paperWidth\"?\n");
        QCOMPARE(
            config("", {u"list"_s, u"nonsense"_s}),
            "palvestrin: error: no program reads \"nonsense\"; \"palvestrin config list\" lists the known "
            "ones\n");
    }

    void showIsIndentedLikeTheFile()
    {
        const QByteArray file = folder.path(u"c.conf"_s).toUtf8();
        QCOMPARE(
            config(
                "top = 1; palvestrin: { a = x; logger: { level = INFO; deep: { k = ; }; }; doc: { w = 1; }; "
                "}; other: { n = 2; };",
                {u"show"_s}),
            file + "\n"
                   "top = 1\n"
                   "palvestrin\n"
                   "    a = x\n"
                   "    logger\n"
                   "        level = INFO\n"
                   "        deep\n"
                   "            k = \n"
                   "    doc\n"
                   "        w = 1\n"
                   "other\n"
                   "    n = 2\n");
    }

    void aRemarkDoesNotBreakTheIndentation()
    {
        const QByteArray file = folder.path(u"c.conf"_s).toUtf8();
        QCOMPARE(config("palvestrin: {\n  # loud\n  logger: { # or not\n level = INFO; }; };", {u"show"_s}),
                 file + "\npalvestrin\n    # loud logger\n        # or not level = INFO\n");
    }

    void passwordsAreNotShown()
    {
        const QByteArray content = "palvestrin: { db: { username = shop; password = geheim; }; };";
        QCOMPARE(config(content, {u"list"_s, u"palvestrin.db.password"_s}),
                 "palvestrin.db.password = (hidden)\n"
                 "    database password; when missing: \"\"\n"
                 "    read by: database\n");
        const QByteArray file = folder.path(u"c.conf"_s).toUtf8();
        QCOMPARE(config(content, {u"show"_s}),
                 file + "\npalvestrin\n    db\n        username = shop\n        password = (hidden)\n");
    }

    void whoAsksForAPasswordSeesIt()
    {
        const QByteArray content = "palvestrin: { db: { username = shop; password = geheim; }; };";
        QVERIFY(config(content, {u"list"_s, u"--show-secrets"_s, u"db"_s})
                    .contains("palvestrin.db.password = geheim\n"));
        QVERIFY(config(content, {u"show"_s, u"--show-secrets"_s}).contains("        password = geheim\n"));
        QCOMPARE(config(content, {u"get"_s, u"palvestrin.db.password"_s}), "geheim\n");
    }

    void aPasswordThatIsNotSetHidesNothing()
    {
        QVERIFY(config("palvestrin: { };", {u"list"_s, u"palvestrin.db.password"_s})
                    .startsWith("palvestrin.db.password is not set\n"));
        QVERIFY(
            config("palvestrin: { db: { password = ; }; };", {u"show"_s}).endsWith("        password = \n"));
    }

    void jsonTellsThatAValueIsHidden()
    {
        const QByteArray content = "palvestrin: { db: { password = geheim; }; };";
        const QJsonObject hidden =
            QJsonDocument::fromJson(config(content, {u"list"_s, u"--json"_s, u"palvestrin.db.password"_s}))[0]
                .toObject();
        QCOMPARE(hidden[u"value"_s], QJsonValue(u"(hidden)"_s));
        QCOMPARE(hidden[u"effective"_s], QJsonValue(u"(hidden)"_s));
        QCOMPARE(hidden[u"hidden"_s], QJsonValue(true));
        const QJsonObject shown = QJsonDocument::fromJson(config(
            content, {u"list"_s, u"--json"_s, u"--show-secrets"_s, u"palvestrin.db.password"_s}))[0]
                                      .toObject();
        QCOMPARE(shown[u"value"_s], QJsonValue(u"geheim"_s));
        QVERIFY(!shown.contains(u"hidden"_s));
    }

    /// A slip in the file does not show the password either.
    void noSlipShowsAPassword_data()
    {
        QTest::addColumn<QByteArray>("content");
        const auto row = [](const char *name, const QByteArray &content) { QTest::newRow(name) << content; };
        row("misspelled", "palvestrin: { db: { pasword = geheim; }; };");
        row("in another language", "palvestrin: { db: { Passwort = geheim; }; };");
        row("short", "palvestrin: { db: { pass = geheim; }; };");
        row("in capitals", "palvestrin: { db: { PASSWORD = geheim; }; };");
        row("behind a remark", "palvestrin: { db: { # for the shop\n password = geheim; }; };");
        row("a block too high", "palvestrin: { password = geheim; };");
        row("in another block", "palvestrin: { }; old: { db: { password = geheim; }; };");
        row("behind a forgotten semicolon", "palvestrin: { db: { username = shop\n password = geheim; }; };");
        row("outside all blocks", "password = geheim; palvestrin: { db: { dbname = x; }; };");
    }
    void noSlipShowsAPassword()
    {
        QFETCH(QByteArray, content);
        for (const QStringList &words :
             {QStringList{u"list"_s}, QStringList{u"show"_s}, QStringList{u"list"_s, u"--json"_s}}) {
            const QByteArray output = config(content, words);
            QVERIFY2(output.contains("(hidden)"), output);
            QVERIFY2(!output.contains("geheim"), output);
        }
    }
};

QTEST_GUILESS_MAIN(ConfigListTest)
#include "configlist_test.moc"
