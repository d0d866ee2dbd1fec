#include "pictureoutput.h"

#include "commanderror.h"
#include "textfile.h"

#include <iostream>

using namespace Qt::Literals::StringLiterals;

void writePicture(const FileName &name, const QByteArray &picture)
{
    if (name.bytes() == "-") {
        if (!std::cout.write(picture.constData(), picture.size()).flush())
            throw CommandError(ExitCode::WriteFailed, u"standard output cannot be written"_s);
        return;
    }
    TextFile file(name);
    file.stream().write(picture.constData(), picture.size());
    file.commit();
}
