#include "capturedoutput.h"
#include "pvconfiguration.h"
#include "temporaryhome.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class PvConfigurationTest : public QObject
{
    Q_OBJECT

private:
    const TemporaryHome home;

private Q_SLOTS:
    void aMissingFileIsReportedOnce()
    {
        CapturedOutput output;
        const PVConfiguration configuration;
        QCOMPARE(configuration.getStrValue(u"palvestrin.logger.level"_s), QString());
        QCOMPARE(output.bytes(), "Error in the method FileReader::open( " + home.path().toUtf8() +
                                     "/.palvestrin/conf/palvestrin.conf ): File Not Found\n");
    }

    void readsTheFileUnderHome()
    {
        home.configure("palvestrin: { a = v\xe8; db: { dbname = shop; }; };");
        const PVConfiguration configuration;
        QCOMPARE(configuration.getStrValue(u"palvestrin.db.dbname"_s), u"shop"_s);
        QCOMPARE(configuration.getStrValue(u"palvestrin.a"_s), u"vè"_s);
        QCOMPARE(configuration.getStrValue(u"palvestrin.db"_s), QString()); // a block, not a pair
        QCOMPARE(configuration.getStrValue(u"palvestrin.\u20ac"_s), QString());
    }

    void aKeyOutsideLatin1IsAskedWithQuestionMarks()
    {
        home.configure("palvestrin: { ? = v; };");
        QCOMPARE(PVConfiguration().getStrValue(u"palvestrin.\u20ac"_s), u"v"_s);
    }

    void aBlockNameMayAlsoBeAPair()
    {
        home.configure("palvestrin: { db = x; db: { dbname = shop; }; };");
        QCOMPARE(PVConfiguration().getStrValue(u"palvestrin.db"_s), u"x"_s);
    }

    void aHomeWithATrailingSlash()
    {
        qputenv("HOME", home.path().toUtf8() + "/");
        QCOMPARE(PVConfiguration::userFile(), home.path() + u"/.palvestrin/conf/palvestrin.conf"_s);
    }
};

QTEST_GUILESS_MAIN(PvConfigurationTest)
#include "pvconfiguration_test.moc"
