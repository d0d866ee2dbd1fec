#pragma once

#include <QDomElement>
#include <QStringList>

namespace libconfig {

/// The attributes of one element in the order of the file, which the toolkit's own map forgets.
///
/// The order is kept in the element's node value, a text that the DOM gives no meaning on elements.
/// Everything that sets or removes an attribute goes through this class; an attribute set in another way
/// counts as standing behind the others, by name.
///
/// The order is stored when the object is destroyed, so a whole block is read through one object.
class OrderedAttributes
{
public:
    explicit OrderedAttributes(const QDomElement &element);
    OrderedAttributes(const OrderedAttributes &) = delete;
    OrderedAttributes &operator=(const OrderedAttributes &) = delete;
    ~OrderedAttributes();

    /// An attribute that is there already keeps its place, a new one goes behind the others.
    void set(const QString &name, const QString &value);
    void remove(const QString &name);
    QStringList names() const;
    void setOrder(const QStringList &names);

private:
    QDomElement element;
    QString order; ///< each name with a separator in front, which no name can hold
};

} // namespace libconfig
