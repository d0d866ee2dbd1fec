#include "printers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const Command *commands[] = {&printersListCommand, &printersAddCommand};

} // namespace

constinit const Command printersCommand{.name = "printers"_L1,
                                        .summary = "List printers, and add them."_L1,
                                        .commands = commands,
                                        .usual = &printersListCommand};
