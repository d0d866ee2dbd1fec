#pragma once

#include "documentorder.h"

#include <optional>

namespace check {

/// Follows the amounts of one document, and finds those that do not add up.
///
/// Texts that are no plain numbers are not reckoned with, nor is a sum that they belong to.
class Sums
{
public:
    void check(const JobElement &element, Part part, FindingSink &sink);

private:
    void checkRow(const JobElement &element, FindingSink &sink);
    void checkTotal(const JobElement &element, int number, FindingSink &sink) const;

    std::optional<double> sum = 0; ///< of the rows so far
    bool hasRow = false;
};

} // namespace check
