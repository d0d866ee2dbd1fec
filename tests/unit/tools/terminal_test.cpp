// What palvestrin makes of the bytes that a terminal sends, and what it sends back: proven with locales that
// the test makes for itself. File names are bytes in all of them.

#include "program.h"
#include "scratchfolder.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// newlocale() of the C library forgets the folders that it reads in LOCPATH, so the sanitizers' build must
/// not look for leaks here. Other builds do not know the variable.
const QString withoutLeakCheck = u"ASAN_OPTIONS=detect_leaks=0"_s;

QByteArray fileWithName(const QByteArray &dbname)
{
    return "palvestrin: \n{\n    db: \n    {\n        dbname = \"" + dbname + "\";\n    };\n\n};\n\n";
}

} // namespace

class TerminalTest : public QObject
{
    Q_OBJECT

private:
    const ScratchFolder locales;
    std::unique_ptr<ScratchFolder> home;

    void makeLocale(const QString &source, const QString &charmap)
    {
        const QString folder = locales.path(source + u'.' + charmap);
        const ProgramRun localedef = runProgram(u"localedef"_s, {u"-i"_s, source, u"-f"_s, charmap, folder},
                                                {u"PATH="_s + qEnvironmentVariable("PATH")});
        QVERIFY2(QFile::exists(folder + u"/LC_CTYPE"_s), localedef.standardError);
    }
    QStringList environment(const QString &locale) const
    {
        return {u"HOME="_s + home->path(),
                u"LOCPATH="_s + locales.path(),
                u"LC_ALL="_s + locale,
                withoutLeakCheck,
                u"PROGRAM="_s + QStringLiteral(PALVESTRIN_PROGRAM),
                u"PATH="_s + qEnvironmentVariable("PATH")};
    }
    /// A shell types `line`, for QProcess hands over UTF-8 only: "$PROGRAM" and `printf` stand in it.
    ProgramRun type(const QString &locale, const QString &line) const
    {
        return runProgram(u"/bin/sh"_s, {u"-c"_s, line}, environment(locale), home->path());
    }
    QByteArray stored() const { return home->read(u".palvestrin/conf/palvestrin.conf"_s); }

private Q_SLOTS:
    void initTestCase()
    {
        makeLocale(u"it_IT"_s, u"ISO-8859-1"_s);
        makeLocale(u"it_IT"_s, u"ISO-8859-15"_s);
        makeLocale(u"it_IT"_s, u"UTF-8"_s);
    }
    void init() { home = std::make_unique<ScratchFolder>(); }

    void valuesAreInTheEncodingOfTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("inFile");
        QTest::newRow("latin-1") << u"it_IT.ISO-8859-1"_s << QByteArray("caff\xe8") << QByteArray("caff\xe8");
        QTest::newRow("latin-9") << u"it_IT.ISO-8859-15"_s << QByteArray("caff\xe8")
                                 << QByteArray("caff\xe8");
        QTest::newRow("utf-8") << u"it_IT.UTF-8"_s << QByteArray("caff\xc3\xa8") << QByteArray("caff\xe8");
        QTest::newRow("c") << u"C"_s << QByteArray("caff\xc3\xa8") << QByteArray("caff\xe8");
        QTest::newRow("not installed")
            << u"fr_FR.ISO-8859-1"_s << QByteArray("caff\xc3\xa8") << QByteArray("caff\xe8");
        QTest::newRow("utf-8 on a latin-1 terminal")
            << u"it_IT.ISO-8859-1"_s << QByteArray("caff\xc3\xa8") << QByteArray("caff\xc3\xa8");
    }
    void valuesAreInTheEncodingOfTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QByteArray, typed);
        QFETCH(QByteArray, inFile);
        QString octal;
        for (const char byte : typed)
            octal += u"\\%1"_s.arg(uchar(byte), 3, 8, QChar(u'0'));
        const ProgramRun set = type(
            locale, u"exec \"$PROGRAM\" config set palvestrin.db.dbname \"$(printf '%1')\""_s.arg(octal));
        QCOMPARE(set.standardError, QByteArray());
        QCOMPARE(stored(), fileWithName(inFile));
        const ProgramRun got = type(locale, u"exec \"$PROGRAM\" config get palvestrin.db.dbname"_s);
        QCOMPARE(got.standardOutput, typed + '\n');
        QVERIFY(
            type(locale, u"exec \"$PROGRAM\" config show"_s).standardOutput.endsWith(" = " + typed + '\n'));
    }

    void whatTheTextFormCannotHoldIsTold()
    {
        const ProgramRun euro =
            type(u"it_IT.ISO-8859-15"_s,
                 u"exec \"$PROGRAM\" config set palvestrin.db.dbname \"$(printf '5 \\244')\""_s);
        QCOMPARE(euro.standardError, "palvestrin: error: a value cannot hold '\xa4'; leave it out\n");
        QCOMPARE(euro.exitStatus, 3);
        const ProgramRun broken =
            type(u"it_IT.UTF-8"_s,
                 u"exec \"$PROGRAM\" config set palvestrin.db.dbname \"$(printf 'caff\\350')\""_s);
        QCOMPARE(broken.standardError,
                 "palvestrin: error: a value cannot hold '\xef\xbf\xbd'; leave it out\n");
        QCOMPARE(broken.exitStatus, 3);
    }

    /// Latin-1 has a sign for currency where Latin-9 has the euro.
    void whatTheTerminalCannotShowIsAQuestionMark()
    {
        QDir(home->path()).mkpath(u".palvestrin/conf"_s);
        home->write(u".palvestrin/conf/palvestrin.conf"_s, fileWithName("5 \xa4"));
        const QString line = u"exec \"$PROGRAM\" config get palvestrin.db.dbname"_s;
        QCOMPARE(type(u"it_IT.ISO-8859-1"_s, line).standardOutput, QByteArray("5 \xa4\n"));
        QCOMPARE(type(u"it_IT.ISO-8859-15"_s, line).standardOutput, QByteArray("5 ?\n"));
        QCOMPARE(type(u"it_IT.UTF-8"_s, line).standardOutput, QByteArray("5 \xc2\xa4\n"));
    }

    void jsonIsUtf8Everywhere()
    {
        QDir(home->path()).mkpath(u".palvestrin/conf"_s);
        home->write(u".palvestrin/conf/palvestrin.conf"_s, fileWithName("caff\xe8"));
        for (const QString &locale : {u"it_IT.ISO-8859-1"_s, u"it_IT.UTF-8"_s, u"C"_s}) {
            const ProgramRun list =
                type(locale, u"exec \"$PROGRAM\" config list --json palvestrin.db.dbname"_s);
            QVERIFY2(list.standardOutput.contains("\"value\": \"caff\xc3\xa8\","), list.standardOutput);
        }
    }

    void fileNamesAreBytes_data()
    {
        QTest::addColumn<QString>("locale");
        for (const QString &locale :
             {u"it_IT.ISO-8859-1"_s, u"it_IT.ISO-8859-15"_s, u"it_IT.UTF-8"_s, u"C"_s})
            QTest::addRow("%s", qPrintable(locale)) << locale;
    }
    /// The name and its folder are no UTF-8, in whatever locale; everything that is made beside it is named
    /// alike.
    void fileNamesAreBytes()
    {
        QFETCH(QString, locale);
        const ProgramRun run =
            type(locale,
                 u"name=$(printf 'caff\\350/conto-\\350\\377.conf')\n"
                 "other=$(printf 'altro-\\350.xml')\n"
                 "\"$PROGRAM\" config set --file \"$name\" palvestrin.db.dbname one &&\n"
                 "\"$PROGRAM\" config set --file=\"$name\" palvestrin.db.dbname two &&\n"
                 "printf '# remark' >>\"$name\" &&\n"
                 "\"$PROGRAM\" config set --file \"$name\" --force palvestrin.db.dbname three 2>&1 &&\n"
                 "\"$PROGRAM\" config convert --to xml --force --output \"$other\" \"$name\" 2>/dev/null &&\n"
                 "\"$PROGRAM\" config show --file \"$name\" | head -n 1\n"
                 "find . -type f | LC_ALL=C sort\n"
                 "\"$PROGRAM\" config get --file \"$other\" palvestrin.db.dbname\n"
                 "rm -r \"$other\" \"$(dirname \"$name\")\""_s); // the toolkit cannot remove them
        const bool isUtf8 = !locale.contains("8859"_L1);
        const QByteArray replaced = "\xef\xbf\xbd";
        const QByteArray e = isUtf8 ? replaced : QByteArray("\xe8"); // as messages show it
        const QByteArray y = isUtf8 ? replaced : QByteArray("\xff");
        const QByteArray folder = home->path().toUtf8();
        QCOMPARE(run.standardOutput, "palvestrin: note: the file as it was is kept as " + folder + "/caff" +
                                         e + "/conto-" + e + y + ".conf.bak.1\n" + "caff" + e + "/conto-" +
                                         e + y +
                                         ".conf\n"
                                         "./altro-\xe8.xml\n"
                                         "./caff\xe8/conto-\xe8\xff.conf\n"
                                         "./caff\xe8/conto-\xe8\xff.conf.bak\n"
                                         "./caff\xe8/conto-\xe8\xff.conf.bak.1\n"
                                         "three\n");
        QCOMPARE(run.standardError, QByteArray());
        QVERIFY2(home->names().isEmpty(), qPrintable(home->names().join(u' ')));
    }

    void theWindowIsGivenTheBytesOfTheName()
    {
        const ProgramRun run =
            type(u"it_IT.UTF-8"_s, u"name=$(printf 'conto-\\350.conf')\n"
                                   "printf 'palvestrin: {' >\"$name\"\n"
                                   "mkdir bin\n"
                                   "cp \"$PROGRAM\" bin/palvestrin\n"
                                   "printf '#!/bin/sh\\nprintf \"<%%s>\" \"$@\"' >bin/palvestrin-settings\n"
                                   "chmod +x bin/palvestrin-settings\n"
                                   "bin/palvestrin config edit --file \"$name\"\n"
                                   "rm \"$name\""_s);
        QCOMPARE(run.standardOutput, QByteArray("<--file><conto-\xe8.conf>"));
        QCOMPARE(run.standardError, QByteArray());
    }

    /// In some containers nothing is mounted there.
    void needsNoProc()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizers complain of a missing /proc themselves");
#endif
        const QString hideProc = u"unshare -rm sh -c 'mount -t tmpfs none /proc && exec \"$@\"' sh "_s;
        if (!type(u"C"_s, hideProc + u"test ! -e /proc/self"_s).failure.isEmpty())
            QSKIP("this machine lets nobody hide /proc");
        const QString program = hideProc + u"\"$PROGRAM\" config "_s;
        const ProgramRun set = type(u"C"_s, program + u"set palvestrin.db.dbname shop"_s);
        QCOMPARE(set.standardOutput + set.standardError, QByteArray());
        QCOMPARE(stored(), fileWithName("shop"));
        QCOMPARE(type(u"C"_s, program + u"get palvestrin.db.dbname"_s).standardOutput, QByteArray("shop\n"));
        QCOMPARE(
            type(u"C"_s, program + u"convert --to cfg .palvestrin/conf/palvestrin.conf"_s).standardOutput,
            fileWithName("shop"));
        // The window's program is found beside this one, and says what it says without a display.
        const ProgramRun edit = type(u"C"_s, program + u"edit"_s);
        QCOMPARE(edit.standardError,
                 "palvestrin: error: there is no display for a window; use \"palvestrin config set\"\n");
    }
};

QTEST_GUILESS_MAIN(TerminalTest)
#include "terminal_test.moc"
