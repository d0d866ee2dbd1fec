#include "hlibrary.h"

#include <QComboBox>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class HLibraryWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comboBoxIndexOf()
    {
        QComboBox box;
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u""_s), -1);
        box.addItems({u"Tea"_s, u"Teapot"_s, u"Coffee"_s, u"coffee"_s, u"Coffee"_s, u""_s, u"T*a"_s});
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u"Tea"_s), 0);
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u"Coffee"_s), 2); // the first of two
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u"coffee"_s), 3);
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u""_s), 5);
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u"T*a"_s), 6);
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u"Teap"_s), -1);
        QCOMPARE(HLibrary::comboBoxIndexOf(&box, u"Tea "_s), -1);
    }
};

QTEST_MAIN(HLibraryWidgetsTest)
#include "hlibrary_widgets_test.moc"
