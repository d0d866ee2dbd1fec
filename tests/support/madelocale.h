#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

/// Makes a locale, such as "it_IT" with "ISO-8859-15", in a folder that LOCPATH may name.
inline void makeLocale(const QString &folder, const QString &source, const QString &charmap)
{
    QVERIFY(QDir().mkpath(folder));
    const QString path = folder + u'/' + source + u'.' + charmap;
    QProcess localedef;
    localedef.start(QStringLiteral("localedef"),
                    {QStringLiteral("-i"), source, QStringLiteral("-f"), charmap, path});
    QVERIFY(localedef.waitForFinished());
    QVERIFY2(QFile::exists(path + QStringLiteral("/LC_CTYPE")),
             "localedef made no locale: is the package locales there?");
}

/// newlocale() of the C library forgets the folders that it reads in LOCPATH, so the sanitizers' build must
/// not look for leaks in a program that calls it. Other builds do not know the variable.
inline const QString withoutLeakCheck = QStringLiteral("ASAN_OPTIONS=detect_leaks=0");
