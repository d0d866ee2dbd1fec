#include "faultlist.h"
#include "outputreading.h"
#include "pagedbuffer.h"
#include "paperwidths.h"
#include "preview.h"
#include "rowbuilder.h"
#include "stripwidths.h"
#include "terminal.h"
#include "terminalpainter.h"

#include <iostream>

namespace {

/// How wide the paper of each section is.
std::vector<int> widthsOf(FinishedOutput &output, const PaperWidths &configured, const Preview &preview)
{
    if (preview.columns > 0)
        return {preview.columns};
    if (output.isForReceiptPrinter())
        return {preview.profile->columns};
    if (QFile *job = output.job())
        return configured.ofJob(*job);
    paper::StripWidths ruled(configured.widest());
    readOutput(output, preview, ruled, [](const paper::Fault &) {});
    return ruled.widths();
}

/// Shows each file in its turn, as long as somebody looks.
void showAll(const Preview &preview, std::ostream &out, FaultList &faults)
{
    const PaperWidths configured(preview.rendering.configuration);
    paper::TerminalPainter painter(out, terminal::screen(), preview.marks);
    for (const FileName &file : preview.files) {
        FinishedOutput output(file, preview.rendering);
        if (preview.files.size() > 1)
            painter.title(paper::visible(file.shown()));
        painter.setWidths(widthsOf(output, configured, preview));
        readOutput(
            output, preview, painter,
            [&](const paper::Fault &fault) { faults.add(output.name(), fault); },
            [&out] { return bool(out); });
    }
}

} // namespace

void showOnTerminal(const Preview &preview, FaultList &faults)
{
    if (!terminal::isThere())
        return showAll(preview, std::cout, faults);
    PagedBuffer buffer(terminal::rows(), terminal::screen().columns);
    std::ostream out(&buffer);
    showAll(preview, out, faults);
    buffer.finish();
}
