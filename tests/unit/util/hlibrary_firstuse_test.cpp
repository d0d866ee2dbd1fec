#include "capturedoutput.h"
#include "hlibrary.h"
#include "temporaryhome.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What needs a process in which nothing has asked for the configuration yet.
class HLibraryFirstUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyNumberObtainsTheConfigurationBeforeItReportsAnUnknownKind()
    {
        const TemporaryHome home; // without a configuration file
        const CapturedOutput output;
        QCOMPARE(HLibrary::copyNumber(u"Sold"_s), u""_s);
        QCOMPARE(output.bytes(), "Error in the method FileReader::open( " + home.path().toUtf8() +
                                     "/.palvestrin/conf/palvestrin.conf ): File Not Found\n"
                                     "Error into HLibrary::copyNumber::documentPath: sold\n");
    }
};

QTEST_GUILESS_MAIN(HLibraryFirstUseTest)
#include "hlibrary_firstuse_test.moc"
