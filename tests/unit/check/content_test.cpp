#include "content.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using check::Subject;

class ContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subjects_data()
    {
        QTest::addColumn<QByteArray>("beginning");
        QTest::addColumn<Subject>("subject");
        const auto row = [](const char *name, const QByteArray &beginning, Subject subject) {
            QTest::newRow(name) << beginning << subject;
        };
        row("job", "<?xml version=\"1.0\"?>\n<!-- Table 12 -->\n<job>", Subject::Job);
        row("job without a declaration", "<palvestrinjob/>", Subject::Job);
        row("job with a byte order mark", "\xef\xbb\xbf<job>", Subject::Job);
        row("job in UTF-16", QByteArray("\xff\xfe<\0j\0o\0b\0>\0", 12), Subject::Job);
        row("job behind blanks", "\n  <job>", Subject::Job);
        row("configuration", "palvestrin:\n{\n", Subject::Configuration);
        row("configuration behind an empty line", "\npalvestrin:\n{\n", Subject::Configuration);
        row("configuration in XML", "<?xml version='1.0'?><palvestrin>\n", Subject::Configuration);
        row("configuration in XML behind a remark", "<!-- <job> --><palvestrin z='1'>",
            Subject::Configuration);
        row("output", "\nj\n\"Noè\"@\nJ\n", Subject::Output);
        row("output of the register", "\n\"Pizza\"3*650H2R\r\n", Subject::Output);
        row("a remark that does not end", "<!-- ", Subject::Job);
    }
    void subjects()
    {
        QFETCH(QByteArray, beginning);
        QFETCH(Subject, subject);
        QCOMPARE(check::subjectOf(beginning), subject);
    }
};

QTEST_GUILESS_MAIN(ContentTest)
#include "content_test.moc"
