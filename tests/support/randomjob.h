#pragma once

#include <QByteArray>
#include <QStringList>

/// Print jobs and configurations made up from a seed: the same seed gives the same bytes on every machine.
///
/// They are made of the renderer's own vocabulary, and of what it does not know: elements of other methods,
/// unknown names, missing attributes, texts that are too long, too wide, empty or no number.

/// What a made-up job may hold. As it stands: anything that a well-formed job can.
struct RandomJobOptions
{
    QStringList methods; ///< print methods to choose from; all when empty
    int mostDocuments = 3;
    int mostElements = 20;    ///< of one document
    bool strangers = true;    ///< elements and attributes that the method does not read
    bool gaps = true;         ///< attributes may be missing or empty, and numbers no numbers
    bool controls = true;     ///< quotes, line breaks, other control characters
    bool beyondLatin1 = true; ///< letters of other scripts, wide ones, combining ones, emoji
};

/// A well-formed job in UTF-8. Nine in ten use known methods only; without `strangers` all do.
QByteArray randomJob(quint32 seed, const RandomJobOptions &options = {});

struct RandomConfigurationOptions
{
    bool sensible = false; ///< every setting there, widths that leave a description room, only true and false
    bool extreme = false;  ///< among the odd ones, widths beyond any paper and beyond 32 bits
};

/// A configuration in the text form.
QByteArray randomConfiguration(quint32 seed, const RandomConfigurationOptions &options = {});
