#include "knownkeys.h"

#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class KnownKeysTest : public QObject
{
    Q_OBJECT

private:
    static QStringList methodsOf(const QString &name)
    {
        const knownkeys::Key *key = knownkeys::find(name);
        return key ? key->printMethods : QStringList{u"unknown key"_s};
    }

private Q_SLOTS:
    void namesAreUnique()
    {
        QSet<QString> names;
        for (const knownkeys::Key &key : knownkeys::all()) {
            QVERIFY2(!names.contains(key.name), qPrintable(key.name));
            names += key.name;
        }
    }

    void everyBlockTakesEverySettingButTheCopiesOfASoldList()
    {
        // 11 of the application; 26 of each of 8 kinds of document.
        QCOMPARE(knownkeys::all().size(), size_t(12 + 8 * 26 - 1));
        QVERIFY(knownkeys::find(u"palvestrin.fiscaldoc.topMargin"_s));
        QVERIFY(knownkeys::find(u"palvestrin.receiptdoc.descriptionWidth"_s));
        QVERIFY(knownkeys::find(u"palvestrin.prefiscaldoc.copyNumber"_s));
        QVERIFY(!knownkeys::find(u"palvestrin.solddoc.copyNumber"_s));
    }

    void whoConsultsASetting_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("methods");
        const auto row = [](const QString &key, const QStringList &methods) {
            QTest::newRow(qPrintable(key)) << "palvestrin."_L1 + key << methods;
        };
        row(u"logger.level"_s, {});
        row(u"doc.quantityFieldWidth"_s, {u"printPartialOrder"_s});
        row(u"doc.priceFieldWidth"_s, {}); // an order ticket has no prices
        row(u"prefiscaldoc.priceFieldWidth"_s, {u"printFullOrder"_s});
        row(u"receiptdoc.totalPriceFieldWidth"_s,
            {u"printFullOrderReceipt"_s, u"printAbstractOrderReceipt"_s});
        row(u"receiptdoc.printCustomer"_s, {u"printFullOrderReceipt"_s}); // the abstract one has no customer
        row(u"invoicedoc.printCustomer"_s, {u"printFullOrderInvoice"_s, u"printAbstractOrderInvoice"_s});
        row(u"deliverydoc.paperWidth"_s, {u"printFullOrderDelivery"_s});
        row(u"deliverydoc.totalPriceFieldWidth"_s, {});
        row(u"fiscaldoc.paperWidth"_s, {});
        row(u"fiscaldoc.descriptionWidth"_s, {u"printFullOrderFiscal"_s});
        row(u"reportdoc.priceFieldWidth"_s, {u"printStatementOfAccount"_s});
        row(u"reportdoc.paperWidth"_s, {u"printReport"_s, u"printStatementOfAccount"_s});
        row(u"reportdoc.printCustomer"_s, {});
        row(u"solddoc.printDate"_s, {u"printSold"_s});
        row(u"receiptdoc.topMargin"_s, {u"printFullOrderReceipt"_s, u"printAbstractOrderReceipt"_s});
        row(u"fiscaldoc.topMargin"_s, {}); // no sections
        row(u"receiptdoc.descriptionWidth"_s, {});
        row(u"receiptdoc.printLogo"_s, {});
        row(u"receiptdoc.openCashDrawer"_s, {});
        row(u"receiptdoc.paperRows"_s, {});
        row(u"receiptdoc.style"_s, {});
        row(u"receiptdoc.copyNumber"_s, {});
    }
    void whoConsultsASetting()
    {
        QFETCH(QString, key);
        QFETCH(QStringList, methods);
        QCOMPARE(methodsOf(key), methods);
    }

    void effectiveValues_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("effective");
        const auto row = [](const QString &key, const QString &value, const QString &effective) {
            QTest::newRow(qPrintable(key + u'=' + value)) << "palvestrin."_L1 + key << value << effective;
        };
        row(u"receiptdoc.paperWidth"_s, u""_s, u"32"_s);
        row(u"receiptdoc.paperWidth"_s, u"0"_s, u"32"_s);
        row(u"receiptdoc.paperWidth"_s, u"abc"_s, u"32"_s);
        row(u"receiptdoc.paperWidth"_s, u"40"_s, u"40"_s);
        row(u"fiscaldoc.descriptionWidth"_s, u""_s, u"32"_s);
        row(u"receiptdoc.priceFieldWidth"_s, u"8 cm"_s, u"0"_s);
        row(u"receiptdoc.printDate"_s, u"true"_s, u"true"_s);
        row(u"receiptdoc.printDate"_s, u"True"_s, u"false"_s);
        row(u"receiptdoc.printDate"_s, u""_s, u"false"_s);
        row(u"logger.level"_s, u"warning"_s, u"WARNING"_s);
        row(u"logger.level"_s, u"loud"_s, u"DEBUG"_s);
        row(u"logger.type"_s, u"append"_s, u"APPEND"_s);
        row(u"logger.type"_s, u"new"_s, u""_s);
        row(u"db.dbname"_s, u"shop"_s, u"shop"_s);
    }
    void effectiveValues()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(QString, effective);
        QCOMPARE(knownkeys::effectiveValue(*knownkeys::find(key), value), effective);
    }

    void senselessValues()
    {
        const auto objection = [](const QString &key, const QString &value) {
            return knownkeys::objection(*knownkeys::find(key), value);
        };
        const QString number = u"give a whole number from 0 to 999"_s;
        QCOMPARE(objection(u"palvestrin.receiptdoc.paperWidth"_s, u"40"_s), QString());
        QCOMPARE(objection(u"palvestrin.receiptdoc.paperWidth"_s, u"-1"_s), number);
        QCOMPARE(objection(u"palvestrin.receiptdoc.paperWidth"_s, u"1000"_s), number);
        QCOMPARE(objection(u"palvestrin.receiptdoc.topMargin"_s, u"two"_s), number);
        QCOMPARE(objection(u"palvestrin.receiptdoc.printDate"_s, u"false"_s), QString());
        QCOMPARE(objection(u"palvestrin.receiptdoc.printDate"_s, u"yes"_s),
                 u"give true or false, in small letters"_s);
        QCOMPARE(objection(u"palvestrin.logger.level"_s, u"info"_s), QString());
        QCOMPARE(objection(u"palvestrin.logger.level"_s, u"x"_s),
                 u"give one of DEBUG, INFO, WARNING, ERROR, FATAL"_s);
        QCOMPARE(objection(u"palvestrin.logger.type"_s, u"x"_s), u"give APPEND or OVERWRITE"_s);
        QCOMPARE(objection(u"palvestrin.db.dbname"_s, u"anything"_s), QString());
    }

    void slips_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("meant");
        const auto row = [](const QString &typed, const QString &meant) {
            QTest::newRow(qPrintable(typed)) << typed << meant;
        };
        row(u"palvestrin.logger.levl"_s, u"palvestrin.logger.level"_s);
        row(u"palvestrin.Logger.Level"_s, u"palvestrin.logger.level"_s);
        row(u"palvestrin.receipt.paperWidth"_s, u"palvestrin.receiptdoc.paperWidth"_s);
        row(u"palvestrin.receiptdoc.paperWidht"_s, u"palvestrin.receiptdoc.paperWidth"_s);
        row(u"logger.level"_s, u"palvestrin.logger.level"_s);
        row(u"paperwidth"_s, u"palvestrin.doc.paperWidth"_s);
        row(u"something.else"_s, QString());
        row(u""_s, QString());
    }
    void slips()
    {
        QFETCH(QString, typed);
        QFETCH(QString, meant);
        QCOMPARE(knownkeys::closest(typed), meant);
    }
};

QTEST_GUILESS_MAIN(KnownKeysTest)
#include "knownkeys_test.moc"
