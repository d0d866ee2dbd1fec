#pragma once

#include "companyprinterdriver.h"

#include <QStringList>

namespace check {

/// The line printer, without paper: it remembers what the element at hand would have put there.
///
/// It is the real device in everything else, so what a finding says of the paper is what the renderer does.
class Rehearsal : public CompanyPrinterDriver
{
public:
    /// `ownConfiguration` must outlive it.
    explicit Rehearsal(PVConfiguration &ownConfiguration) : CompanyPrinterDriver(ownConfiguration) {}

    /// Before each element.
    void forgetRows();

    /// What is printed since: the text of each row, without quotes and end, or of each register command. Rows
    /// that are equal, one behind the other, stand once.
    const QStringList &rows() const { return printed; }
    /// Whether column titles were left out since, because an earlier document had them.
    bool hasLeftOutTitles() const { return isWithoutTitles; }
    bool printsCommands() const { return isFiscal(); }
    QString printersName() const { return printerName; }

    void startSection() override;
    void printColumnsHeader(const QString &quantity, const QString &description, const QString &price,
                            const QString &total) override;

protected:
    void write(const QString &text) override;

private:
    QStringList printed;
    bool hasTitles = false; ///< whether the current document has had its titles, or their lack is told
    bool isWithoutTitles = false;
};

} // namespace check
