#pragma once

#include "documentkinds.h"
#include "filename.h"
#include "libconfig.h"

#include <QIODevice>

#include <vector>

/// How wide the paper is that a configuration gives to a document, in columns.
class PaperWidths
{
public:
    /// Of that file, "" meaning the user's. One that is not there gives every document the printer's own
    /// width.
    explicit PaperWidths(const FileName &configuration);

    /// For each section that the job prints, by the print methods that it calls.
    std::vector<int> ofJob(QIODevice &job) const;
    /// The widest paper of the configuration, for an output of which nobody knows what printed it.
    int widest() const;

private:
    int of(const vocabulary::DocumentKind &kind) const;

    libconfig::Config configuration;
};
