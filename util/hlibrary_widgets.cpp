#include "hlibrary.h"

#include <QComboBox>

int HLibrary::comboBoxIndexOf(const QComboBox *box, const QString &text)
{
    return box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
}
