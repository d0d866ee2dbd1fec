#pragma once

#include <QCoreApplication>

namespace paper {

/// What commands to a register mean is told in the language of the program that shows them, English without a
/// catalogue: `RegisterWords::tr("...")`.
class RegisterWords
{
    Q_DECLARE_TR_FUNCTIONS(Register)
};

} // namespace paper
