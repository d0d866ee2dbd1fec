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

    void speeds()
    {
        for (const int baud : {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200, 230400})
            QCOMPARE(parsed(("palvestrin:/dev/ttyS0?baud=" + std::to_string(baud)).c_str()).baud, baud);
    }

    void flowControl()
    {
        QCOMPARE(parsed("palvestrin:/dev/ttyS0?baud=9600").flow, DeviceAddress::Flow::Software);
        QCOMPARE(parsed("palvestrin:/dev/ttyS0?flow=software").flow, DeviceAddress::Flow::Software);
        QCOMPARE(parsed("palvestrin:/dev/ttyS0?baud=9600&flow=hardware").flow, DeviceAddress::Flow::Hardware);
    }

    void whatPeopleName_data()
    {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QByteArray>("uri");
        const auto row = [](const char *place, const char *uri) {
            QTest::newRow(place) << QByteArray(place) << QByteArray(uri);
        };
        row("192.0.2.7", "palvestrin://192.0.2.7");
        row("kitchen:9101", "palvestrin://kitchen:9101");
        row("kitchen?wait=60", "palvestrin://kitchen/?wait=60");
        row("kitchen:9101?wait=60", "palvestrin://kitchen:9101/?wait=60");
        row("[2001:db8::7]?status=ask", "palvestrin://[2001:db8::7]/?status=ask");
        row("palvestrin://kitchen?wait=60", "palvestrin://kitchen/?wait=60");
        row("palvestrin://kitchen/?wait=60", "palvestrin://kitchen/?wait=60");
        row("/dev/usb/lp0", "palvestrin:/dev/usb/lp0");
        row("/dev/ttyS0?baud=9600", "palvestrin:/dev/ttyS0?baud=9600");
        row("palvestrin:/dev/ttyS0?baud=9600", "palvestrin:/dev/ttyS0?baud=9600");
    }
    void whatPeopleName()
    {
        QFETCH(QByteArray, place);
        const std::string uri = deviceUri(place.toStdString());
        QTEST(QByteArray::fromStdString(uri), "uri");
        std::string trouble;
        QVERIFY2(deviceAddress(uri, trouble), trouble.c_str());
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
        row("palvestrin:/dev/ttyS0?flow=none", "flow is one of software and hardware");
        row("palvestrin:/etc/passwd", "it names neither a host nor a device below /dev");
        row("palvestrin://kitchen/lp", "behind the host there is no path; options follow a question mark");
        row("palvestrin://kitchen?status=maybe", "status is one of required, ask and never");
        row("palvestrin://kitchen?wait=0", "wait is a number of seconds from 1 to 86400");
        row("palvestrin://kitchen?wait=7s", "wait is a number of seconds from 1 to 86400");
        row("palvestrin:/dev/../etc/passwd", "it names neither a host nor a device below /dev");
        row("palvestrin:/dev/shm/..", "it names neither a host nor a device below /dev");
        constexpr auto speeds = "baud is one of 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200, 230400";
        row("palvestrin:/dev/ttyS0?baud=x", speeds);
        row("palvestrin:/dev/ttyS0?baud=", speeds);
        row("palvestrin:/dev/ttyS0?baud=0", speeds);
        row("palvestrin:/dev/ttyS0?baud=9601", speeds); // between two that there are
        row("palvestrin:/dev/ttyS0?baud=4000000", speeds);
        row("palvestrin://", "it names neither a host nor a device below /dev");
        row("palvestrin://kitchen:",
            "behind a colon there is a port, from 1 to 65535; an IPv6 address stands in brackets");
        row("palvestrin://kitchen:0",
            "behind a colon there is a port, from 1 to 65535; an IPv6 address stands in brackets");
        row("palvestrin://kitchen:65536",
            "behind a colon there is a port, from 1 to 65535; an IPv6 address stands in brackets");
        row("palvestrin://2001:db8::7",
            "behind a colon there is a port, from 1 to 65535; an IPv6 address stands in brackets");
        row("palvestrin://192.0.2.300", "no host is called \"192.0.2.300\"");
        row("palvestrin://192.0.2", "no host is called \"192.0.2\"");
        row("palvestrin://192,0,2,7", "no host is called \"192,0,2,7\"");
        row("palvestrin://the%20kitchen", "no host is called \"the kitchen\"");
        row("palvestrin://root@kitchen", "printers have no users; before the host there is nothing");
        row("palvestrin://kitchen?stat=never",
            "there is no option \"stat=never\"; there are status, wait, baud and flow");
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
