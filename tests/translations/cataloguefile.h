#pragma once

#include <QList>
#include <QString>

/// One `message` of a Qt Linguist catalogue.
struct CatalogueEntry
{
    QString context;
    QString source;
    QString translation;
    bool finished = false;
};

/// All messages of the catalogue source `fileName`, in order; empty when it cannot be read as one.
QList<CatalogueEntry> readCatalogue(const QString &fileName);
