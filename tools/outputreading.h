#pragma once

#include "finishedoutput.h"
#include "preview.h"
#include "streamreader.h"

#include <functional>

/// Reads an output to its end, or as long as `goesOn`, and hands it to the painter.
void readOutput(
    FinishedOutput &output, const Preview &preview, paper::Painter &painter, const paper::FaultSink &onFault,
    const std::function<bool()> &goesOn = [] { return true; });

/// The same without a reader: `take` gets the bytes.
void readBytes(FinishedOutput &output, const std::function<void(QByteArrayView)> &take,
               const std::function<bool()> &goesOn);
