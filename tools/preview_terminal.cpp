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

/// Looks for a narrow row. A terminal has one font, so the paper is as wide as its longest rows may be.
class NarrowRows : public paper::Painter
{
public:
    void beginStrip(paper::StripKind) override {}
    void row(const paper::Row &row) override { areThere = areThere || row.isNarrow; }
    void event(paper::Event) override {}
    void remark(const QString &) override {}
    void endStrip() override {}

    bool areThere = false;
};

int columnsOfReceipts(FinishedOutput &output, const Preview &preview)
{
    NarrowRows rows;
    readOutput(output, preview, rows, [](const paper::Fault &) {});
    const int columns = preview.profile->columns;
    return rows.areThere ? paper::narrowColumns(columns) : columns;
}

/// How wide the paper of each section is.
std::vector<int> widthsOf(FinishedOutput &output, const PaperWidths &configured, const Preview &preview)
{
    if (preview.columns > 0)
        return {preview.columns};
    if (output.isForReceiptPrinter())
        return {columnsOfReceipts(output, preview)};
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
            output, preview, painter, [&](const paper::Fault &fault) { faults.add(output.name(), fault); },
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
