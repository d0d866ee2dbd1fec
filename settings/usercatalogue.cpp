#include "usercatalogue.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

bool loadUserCatalogue(QTranslator &catalogue, const QLocale &language)
{
    const QString programs = QCoreApplication::applicationDirPath();
    // Where the programs are installed, and where they are built.
    for (const QString &folder :
         {programs + u"/../share/palvestrin/translations"_s, programs + u"/../translations"_s}) {
        if (catalogue.load(language, u"palvestrin-tools"_s, u"_"_s, folder))
            return true;
    }
    return false;
}

QString inUserLanguage(const char *text)
{
    return UserWords::tr(text);
}

QString inUserLanguage(const QString &text)
{
    return inUserLanguage(text.toUtf8().constData());
}
