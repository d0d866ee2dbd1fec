#include "paperwidths.h"

#include "configfile.h"
#include "jobmethods.h"
#include "printmethods.h"
#include "pvconfiguration.h"
#include "stripwidths.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

PaperWidths::PaperWidths(const FileName &file)
{
    const FileName path = file.isEmpty() ? FileName(PVConfiguration::userFile()) : file;
    if (path.exists())
        configuration.readContent(bytesOf(path), path.shown(), form::text); // as the renderer does
}

std::vector<int> PaperWidths::ofJob(QIODevice &job) const
{
    std::vector<int> widths;
    forEachMethod(job, [&](const QString &name) {
        if (const PrintMethod *method = findPrintMethod(name)) {
            const auto *kind = std::ranges::find(documentKinds, method->kind, &DocumentKind::name);
            widths.push_back(ofBlock(kind->path));
        }
    });
    return widths;
}

int PaperWidths::ofBlock(QLatin1StringView path) const
{
    const int width = configuration.lookup(path + "paperWidth"_L1).toInt();
    return std::clamp(width, paper::StripWidths::least, paper::StripWidths::most);
}

int PaperWidths::widest() const
{
    int width = paper::StripWidths::least;
    for (const DocumentKind &kind : documentKinds)
        width = std::max(width, ofBlock(kind.path));
    return width;
}
