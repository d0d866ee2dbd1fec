#include "faultlist.h"
#include "outputreading.h"
#include "preview.h"
#include "textfile.h"
#include "textpainter.h"

#include <iostream>

namespace {

void writeAll(const Preview &preview, std::ostream &out, FaultList &faults)
{
    paper::TextPainter painter(out);
    for (const FileName &file : preview.files) {
        FinishedOutput output(file, preview.rendering);
        readOutput(
            output, preview, painter, [&](const paper::Fault &fault) { faults.add(output.name(), fault); },
            [&out] { return bool(out); });
    }
}

} // namespace

void writeText(const Preview &preview, FaultList &faults)
{
    if (preview.isForStandardOutput())
        return writeAll(preview, std::cout, faults);
    TextFile file(preview.output);
    writeAll(preview, file.stream(), faults);
    file.commit();
}
