#include "paperwidths.h"

#include "configfile.h"
#include "jobmethods.h"
#include "printmethods.h"
#include "pvconfiguration.h"
#include "stripwidths.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using vocabulary::DocumentKind;
using vocabulary::PrintMethod;

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
        if (const PrintMethod *method = vocabulary::findPrintMethod(name))
            widths.push_back(of(*vocabulary::findDocumentKind(QString(method->kind))));
    });
    return widths;
}

int PaperWidths::widest() const
{
    int width = paper::StripWidths::least;
    for (const DocumentKind &kind : vocabulary::documentKinds)
        width = std::max(width, of(kind));
    return width;
}

int PaperWidths::of(const DocumentKind &kind) const
{
    const int width = configuration.lookup(kind.path() + "paperWidth"_L1).toInt();
    return std::clamp(width, paper::StripWidths::least, paper::StripWidths::most);
}
