#pragma once

#include "registercommand.h"

#include <array>

namespace paper {

/// What a cash register makes of its commands, as far as they tell: the sum and what is left to pay.
class RegisterSum
{
public:
    void add(const RegisterCommand &command);
    /// A command could not be read.
    void addUnread() { ++unread; }

    bool isEmpty() const { return isUntouched && unread == 0; }
    /// The sum that the register will show, how it comes about and how it is paid, in sentences.
    QString text() const;

private:
    double total() const { return sales - reductions - discounts; }
    double paid() const;
    QString partsText() const;
    QString paymentText() const;
    QString unreadText() const;

    bool isUntouched = true;
    double sales = 0; ///< all in cents
    double reductions = 0;
    double discounts = 0;
    std::array<double, std::size(closingCommands)> payments{}; ///< by the place in the table
    int unread = 0;
};

} // namespace paper
