#include "hlibrary.h"

#include "applicationkeys.h"
#include "databasemanager.h"
#include "documentkinds.h"
#include "pvconfiguration.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <ctime>
#include <iostream>
#include <limits>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What stands in front of the settings of a kind of document, given in lower case.
QString documentPath(const QString &kind)
{
    const vocabulary::DocumentKind *known = vocabulary::findDocumentKind(kind);
    if (known && known->hasCopyNumber)
        return known->path();
    std::cout << "Error into HLibrary::copyNumber::documentPath: " << qPrintable(kind) << std::endl;
    return vocabulary::fallbackKind.path();
}

QString setting(const QString &key)
{
    return SyncSingleton<PVConfiguration>::instance()->getStrValue(key);
}

/// Cut towards zero. What does not fit becomes the nearest int, and what is no number becomes 0: the language
/// leaves either undefined.
int toInt(double value)
{
    using Limits = std::numeric_limits<int>;
    if (value >= Limits::max())
        return Limits::max();
    if (value <= Limits::min())
        return Limits::min();
    return value == value ? static_cast<int>(value) : 0;
}

} // namespace

QString HLibrary::appData()
{
    return u""_s;
}

QString HLibrary::programFiles()
{
    return u""_s;
}

QString HLibrary::toWindowsFormat(const QString &path)
{
    return path;
}

QString HLibrary::fromUtf8(const QString &s)
{
    return s;
}

QString HLibrary::dataPath()
{
    return QDir::homePath();
}

QString HLibrary::psql()
{
    return u"psql"_s;
}

QString HLibrary::dropdb()
{
    return u"dropdb"_s;
}

QString HLibrary::pg_dump()
{
    return u"pg_dump"_s;
}

QString HLibrary::pg_restore()
{
    return u"pg_restore"_s;
}

QString HLibrary::pathWithBinaryFile(const QString &name)
{
    return setting(applicationkey::binPath) + u'/' + name;
}

QString HLibrary::getCoreFile()
{
    return QDir().entryList({u"core*"_s}, QDir::AllEntries | QDir::CaseSensitive).value(0);
}

void HLibrary::touch(const QString &path)
{
    QFile file(path);
    if (!path.isEmpty() && file.open(QIODevice::WriteOnly)) // the toolkit complains about an empty name
        file.close();
}

QString HLibrary::getNewRand()
{
    std::srand(static_cast<unsigned int>(std::time(nullptr)));
    return QString::number(std::rand());
}

unsigned int HLibrary::hsleep(unsigned int seconds)
{
    return ::sleep(seconds);
}

QString HLibrary::dbname()
{
    return setting(applicationkey::dbName);
}

QString HLibrary::username()
{
    return setting(applicationkey::dbUserName);
}

QString HLibrary::password()
{
    return setting(applicationkey::dbPassword);
}

QString HLibrary::hostname()
{
    return setting(applicationkey::dbHostName);
}

QSqlDatabase *HLibrary::newDBConnection(const QString &connectionName)
{
    return SyncSingleton<DatabaseManager>::instance()->createConnection(
        u"QPSQL7"_s, dbname(), username(), password(), hostname(), connectionName);
}

QString HLibrary::copyNumber(const QString &kind)
{
    // Obtained first: on standard output the configuration's own message comes before the one on the kind.
    const PVConfiguration *configuration = SyncSingleton<PVConfiguration>::instance();
    return configuration->getStrValue(documentPath(kind.toLower()) + vocabulary::copyNumberSetting);
}

QString HLibrary::truncateDecimal(double value)
{
    const double hundredths = toInt(1000.0 * value) / 10.0;
    int rounded = toInt(hundredths);
    if (hundredths - rounded >= 0.5)
        rounded = toInt(hundredths + 1.0);
    const QString text = QString::number(rounded / 100.0, 'g', 15);
    const qsizetype point = text.indexOf(u'.');
    if (point < 0)
        return text + ".00"_L1;
    return text.left(point) + text.mid(point).leftJustified(3, u'0');
}
