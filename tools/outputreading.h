#pragma once

#include "streamreader.h"

#include <QIODevice>

#include <functional>

/// Reads an output to its end, or as long as `goesOn`, and hands it to the painter.
void readOutput(
    QIODevice &output, const QByteArray &encoding, paper::Painter &painter, const paper::FaultSink &onFault,
    const std::function<bool()> &goesOn = [] { return true; });
