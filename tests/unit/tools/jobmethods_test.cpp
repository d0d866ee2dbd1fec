#include "jobmethods.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Which print methods a job calls.
class JobMethodsTest : public QObject
{
    Q_OBJECT

private:
    static QStringList methodsOf(QByteArray job)
    {
        QBuffer device(&job);
        device.open(QIODevice::ReadOnly);
        QStringList methods;
        forEachMethod(device, [&methods](const QString &name) { methods += name; });
        return methods;
    }

private Q_SLOTS:
    void findsMethods_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QStringList>("methods");
        QTest::newRow("none") << QByteArray("<job/>") << QStringList();
        QTest::newRow("nothing") << QByteArray() << QStringList();
        QTest::newRow("one") << QByteArray("<job><method name=\"a\"/></job>") << QStringList{u"a"_s};
        QTest::newRow("several, in their order")
            << QByteArray("<job><method name='b'></method>\n<x/><method\n\tname = 'a' /></job>")
            << QStringList{u"b"_s, u"a"_s};
        QTest::newRow("other attributes")
            << QByteArray("<method id='name' name='a' z='b'/>") << QStringList{u"a"_s};
        QTest::newRow("the first of two counts")
            << QByteArray("<method name='a' name='b'/>") << QStringList{u"a"_s};
        QTest::newRow("without a name") << QByteArray("<method/><method id='a'/>") << QStringList();
        QTest::newRow("similar names")
            << QByteArray("<methods name='a'/><Method name='b'/>") << QStringList();
        QTest::newRow("in a remark") << QByteArray("<!-- > <method name='a'/> --><method name='b'/>")
                                     << QStringList{u"b"_s};
        QTest::newRow("in marked text")
            << QByteArray("<![CDATA[ <method name='a'/> ]]><method name='b'/>") << QStringList{u"b"_s};
        QTest::newRow("in an instruction")
            << QByteArray("<?x <method name='a'/?><method name='b'/>") << QStringList{u"b"_s};
        QTest::newRow("in an attribute")
            << QByteArray("<x y=\"<method name='a'/>\"/><method name='b'/>") << QStringList{u"b"_s};
        QTest::newRow("quotes in text") << QByteArray("<x>it's</x><method name='b'/>") << QStringList{u"b"_s};
        QTest::newRow("UTF-16") << QByteArray(
                                       "\xff\xfe<\0m\0e\0t\0h\0o\0d\0 \0n\0a\0m\0e\0=\0'\0a\0'\0/\0>\0", 38)
                                << QStringList{u"a"_s};
        QTest::newRow("Latin-1") << QByteArray(
                                        "<?xml version='1.0' encoding='ISO-8859-1'?><method name='\xe8'/>")
                                 << QStringList{u"è"_s};
        QTest::newRow("cut off") << QByteArray("<method name='a'/><method name='b'") << QStringList{u"a"_s};
        QTest::newRow("a long tag") << "<method name='a' x='" + QByteArray(100'000, 'y') +
                                           "'/><method name='b'/>"
                                    << QStringList{u"a"_s, u"b"_s};
    }
    void findsMethods()
    {
        QFETCH(const QByteArray, job);
        QTEST(methodsOf(job), "methods");
    }
};

QTEST_APPLESS_MAIN(JobMethodsTest)

#include "jobmethods_test.moc"
