#pragma once

#include <QStyledItemDelegate>

/// Rows with some air, so that a long list is easy on the eye.
class RoomyRows : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int air = 8; // pixels
        return QStyledItemDelegate::sizeHint(option, index) + QSize(air, air);
    }
};
