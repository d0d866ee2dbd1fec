#pragma once

#include "commanderror.h"

/// What a dialog says of an error: its reasons, one on a line.
inline QString errorText(const CommandError &error)
{
    return error.reasons().join(u'\n');
}
