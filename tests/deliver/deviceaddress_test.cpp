// The URI of a queue, and what is wrong with it.

#include "deviceaddress.h"

#include <QTest>

using namespace std::chrono_literals;

class DeviceAddressTest : public QObject
{
    Q_OBJECT

private:
    static DeviceAddress parsed(const char *uri)
    {
        std::string trouble;
        const std::optional<DeviceAddress> address = deviceAddress(uri, trouble);
        DeviceAddress wrong;
        wrong.host = "wrong: " + trouble;
        return address ? *address : wrong;
    }

private Q_SLOTS:
    void places()
    {
        QCOMPARE(parsed("palvestrin://192.0.2.7").host, std::string("192.0.2.7"));
        QCOMPARE(parsed("palvestrin://192.0.2.7").port, 9100);
        QCOMPARE(parsed("palvestrin://kitchen:9101").port, 9101);
        QCOMPARE(parsed("palvestrin://kitchen/").host, std::string("kitchen"));
        QCOMPARE(parsed("palvestrin://[v1.fe80::1+eth0]").host, std::string("fe80::1%eth0"));
        QCOMPARE(parsed("palvestrin:/dev/usb/lp0").path, std::string("/dev/usb/lp0"));
        QCOMPARE(parsed("palvestrin:/dev/ttyS0?baud=9600").path, std::string("/dev/ttyS0"));
        QCOMPARE(parsed("palvestrin:/dev/ttyS0?baud=9600").baud, 9600);
    }

    void options()
    {
        QCOMPARE(parsed("palvestrin://kitchen").status, DeviceAddress::Status::Ask);
        QCOMPARE(parsed("palvestrin://kitchen?status=never").status, DeviceAddress::Status::Never);
        QCOMPARE(parsed("palvestrin://kitchen:9101?status=never").status, DeviceAddress::Status::Never);
        QCOMPARE(parsed("palvestrin://kitchen:9101?status=never").port, 9101);
        QCOMPARE(parsed("palvestrin://kitchen/?status=required").status, DeviceAddress::Status::Required);
        QCOMPARE(parsed("palvestrin://kitchen?status=ask&wait=7").wait, 7s);
        QCOMPARE(parsed("palvestrin://kitchen").wait, 300s);
    }

    void wrongOnes_data()
    {
        QTest::addColumn<QByteArray>("uri");
        QTest::addColumn<QByteArray>("trouble");
        const auto row = [](const char *uri, const char *trouble) {
            QTest::newRow(uri) << QByteArray(uri) << QByteArray(trouble);
        };
        row("", "it is not of the form palvestrin://HOST or palvestrin:/dev/DEVICE");
        row("socket://kitchen", "it is not of the form palvestrin://HOST or palvestrin:/dev/DEVICE");
        row("palvestrin:/etc/passwd", "it names neither a host nor a device below /dev");
        row("palvestrin://kitchen/lp", "behind the host there is no path; options follow a question mark");
        row("palvestrin://kitchen?status=maybe", "status is one of required, ask and never");
        row("palvestrin://kitchen?wait=0", "wait is a number of seconds from 1 to 86400");
        row("palvestrin://kitchen?wait=7s", "wait is a number of seconds from 1 to 86400");
        row("palvestrin:/dev/../etc/passwd", "it names neither a host nor a device below /dev");
        row("palvestrin:/dev/shm/..", "it names neither a host nor a device below /dev");
        row("palvestrin:/dev/ttyS0?baud=x", "baud is the speed of a serial line, such as 9600");
        row("palvestrin://kitchen?stat=never",
            "there is no option \"stat=never\"; there are status, wait and baud");
    }
    void wrongOnes()
    {
        QFETCH(QByteArray, uri);
        std::string trouble;
        QVERIFY(!deviceAddress(uri.toStdString(), trouble));
        QTEST(QByteArray::fromStdString(trouble), "trouble");
    }
};

QTEST_GUILESS_MAIN(DeviceAddressTest)
#include "deviceaddress_test.moc"
