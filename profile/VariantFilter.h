#pragma once

#include <QString>

class QDomElement;

namespace VELIX {

/// Decides which elements of a profile file belong to a variant.
///
/// An element names variants in its attribute "variant", separated by commas; a "!" before a name
/// excludes it. An element that names none belongs to all, and no variant ("") takes all elements.
class VariantFilter
{
public:
    explicit VariantFilter(QString variant);

    bool takes(const QDomElement& element) const;
    /// list: the text of the attribute. A list that decides anything is printed.
    bool takes(const QString& list) const;

private:
    QString mVariant;
};

} // namespace VELIX
