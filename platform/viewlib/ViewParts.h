#pragma once

#include "platform/viewlib/ViewAttributes.h"
#include "platform/viewlib/ViewModel.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <map>

namespace Vista2D {

class ViewVariables;

/// Reads what several elements have in common from the attributes of one statement: places, texts,
/// conditions and variables. What is wrong goes to the errors and leaves the target as it was.
class ViewParts
{
public:
    static constexpr double kFarthest = 1e5; ///< view units from the origin
    static constexpr double kLargestText = 1000.0;
    static constexpr int kLongestText = 200; ///< characters

    using NamedScales = std::map<QString, ViewScales>;

    /// The origin is that of the block that the statement is in. All others must outlive it.
    ViewParts(ViewAttributes& attributes, const QPointF& origin, ViewModel& model,
              ViewVariables& variables, const NamedScales& scales)
        : mAttributes(attributes),
          mOrigin(origin),
          mModel(model),
          mVariables(variables),
          mScales(scales)
    {}

    [[nodiscard]] ViewAttributes& attributes() { return mAttributes; }
    [[nodiscard]] const ViewColors& colors() const { return mModel.colors; }

    /// Adds the condition of the statement to a list; false if it has none.
    bool condition(ConditionList& target);
    /// Reads a place, which must be given.
    bool place(const char* name, QPointF& target);
    /// Reads place and size, which must be given.
    bool box(QRectF& target);
    /// Reads a text, and cuts it where it is too long.
    bool shownText(const char* name, QString& target);
    void textStyle(ViewText& style);
    bool bindVariable(ViewBinding& target);
    /// Binds a variable, which must be given, and takes the scales of a name.
    void bindInstrument(ViewBinding& target);

private:
    ViewAttributes& mAttributes;
    QPointF mOrigin;
    ViewModel& mModel;
    ViewVariables& mVariables;
    const NamedScales& mScales;
};

} // namespace Vista2D
