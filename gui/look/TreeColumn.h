#pragma once

class QTreeWidget;

namespace VELIX {

/// The only column of a tree: as wide as the view, and with large fonts as its longest line, which
/// then is reached by scrolling.
class TreeColumn
{
public:
    /// To be called after lines have changed.
    static void fit(QTreeWidget& tree);
};

} // namespace VELIX
