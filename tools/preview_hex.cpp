#include "commanderror.h"
#include "hexlisting.h"
#include "outputreading.h"
#include "preview.h"
#include "textfile.h"

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

void listAll(const Preview &preview, std::ostream &out)
{
    for (const FileName &file : preview.files) {
        FinishedOutput output(file, preview.rendering);
        if (!output.isForReceiptPrinter())
            throw CommandError(
                ExitCode::WrongUsage, file,
                u"--hex lists what goes to a receipt printer; for a job, add --device escpos"_s);
        HexListing listing([&out](const QString &line) { out << line.toStdString() << '\n'; });
        readBytes(
            output, [&](QByteArrayView bytes) { listing.take(bytes); }, [&out] { return bool(out); });
        listing.end();
    }
}

} // namespace

void writeHex(const Preview &preview)
{
    if (preview.isForStandardOutput())
        return listAll(preview, std::cout);
    TextFile file(preview.output);
    listAll(preview, file.stream());
    file.commit();
}
