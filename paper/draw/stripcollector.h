#pragma once

#include "strip.h"

#include <QList>

/// Gathers the strips of a stream for a picture. Beyond what a picture holds (see picturelimits.h) it keeps
/// nothing more and only counts, so that a stream of any length takes little memory.
class StripCollector : public paper::Painter
{
public:
    /// `columns` of the paper, for each strip; the last one holds for all that follow. Not empty.
    explicit StripCollector(const QList<int> &columns) : paperColumns(columns) {}

    void beginStrip(paper::StripKind kind) override;
    void row(const paper::Row &row) override;
    void picture(const paper::Picture &picture) override;
    void event(paper::Event event) override { add(event); }
    void remark(const QString &text) override { add(text); }
    void endStrip() override {}

    /// What was read. Throws a CommandError (TooLarge) that tells how much it was.
    const std::vector<Strip> &strips() const;

private:
    void add(const Strip::Line &line);
    bool hasRoom() const;

    QList<int> paperColumns;
    std::vector<Strip> gathered;
    qint64 stripCount = 0;
    qint64 lineCount = 0;
    qint64 cellCount = 0;
    int widest = 0; ///< row, in columns
};
