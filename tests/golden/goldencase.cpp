#include "goldencase.h"

#include "program.h"
#include "wholefile.h"

#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

bool updatingGolden()
{
    return qEnvironmentVariable("PALVESTRIN_UPDATE_GOLDEN") == "1"_L1;
}

QString goldenFolder()
{
    return QStringLiteral(GOLDEN_FOLDER);
}

QStringList foldersIn(const QString &path)
{
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

void addGoldenCases()
{
    QTest::addColumn<QString>("folder");
    for (const QString &area : foldersIn(goldenFolder())) {
        for (const QString &name : foldersIn(goldenFolder() + u'/' + area)) {
            const QString path = area + u'/' + name;
            QTest::newRow(qPrintable(path)) << QString(goldenFolder() + u'/' + path);
        }
    }
}

QString GoldenCase::configurationPath() const
{
    const QString own = filePath(u"palvestrin.conf"_s);
    return QFile::exists(own) ? own : folder.filePath(u"../palvestrin.conf"_s);
}

QByteArray GoldenCase::configuration() const
{
    return contentOf(configurationPath()).replace("@CATALOGUES@", CATALOGUE_FOLDER);
}

QString GoldenCase::defect() const
{
    if (!has(u"expected.out"_s) && !updatingGolden())
        return u"expected.out is missing"_s;
    if (!has(u"about.txt"_s))
        return u"about.txt is missing: one sentence on what the case protects"_s;
    if (!has(u"no-configuration"_s) && !QFile::exists(configurationPath()))
        return u"neither the case nor its area has a palvestrin.conf, nor is there a no-configuration"_s;
    const QStringList unknown = unknownFiles();
    return unknown.isEmpty() ? QString() : u"no run looks at "_s + unknown.join(u", "_s);
}

QStringList GoldenCase::environment(const QString &home) const
{
    QStringList environment = bareEnvironment(home);
    if (!has(u"environment"_s))
        return environment;
    return environment +
           QString::fromUtf8(contentOf(filePath(u"environment"_s))).split(u'\n', Qt::SkipEmptyParts);
}

QByteArray GoldenCase::expectedOutput() const
{
    return contentOf(filePath(u"expected.out"_s));
}

QByteArray GoldenCase::expectedStandardOutput(const QString &home) const
{
    if (!has(u"expected.stdout"_s))
        return {};
    return contentOf(filePath(u"expected.stdout"_s)).replace("@HOME@", home.toUtf8());
}

void GoldenCase::update(const QByteArray &output, const QByteArray &standardOutput) const
{
    rewrite(u"expected.out"_s, output);
    if (!standardOutput.isEmpty()) {
        rewrite(u"expected.stdout"_s, standardOutput);
    } else if (QFile::remove(filePath(u"expected.stdout"_s))) {
        qInfo("removed %s", qPrintable(filePath(u"expected.stdout"_s)));
    }
}

QStringList GoldenCase::unknownFiles() const
{
    static const QStringList known = {u"about.txt"_s,       u"environment"_s, u"expected.out"_s,
                                      u"expected.stdout"_s, u"job.xml"_s,     u"no-configuration"_s,
                                      u"palvestrin.conf"_s};
    QStringList names = folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeIf([](const QString &name) { return known.contains(name); });
    return names;
}

void GoldenCase::rewrite(const QString &name, const QByteArray &content) const
{
    if (has(name) && contentOf(filePath(name)) == content)
        return;
    writeFile(filePath(name), content);
    qInfo("rewrote %s", qPrintable(filePath(name)));
}
