#pragma once

#include <QPushButton>

/// A button whose text keeps off its edges; some styles leave it no room.
class RoomyButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override
    {
        constexpr int air = 20; // pixels
        return QPushButton::sizeHint() + QSize(air, 2);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};
