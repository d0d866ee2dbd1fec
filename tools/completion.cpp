#include "command.h"

using namespace Qt::Literals::StringLiterals;

QList<Offer> offerFiles(const CommandLine &, const QString &)
{
    return {{u":files"_s, {}}};
}
