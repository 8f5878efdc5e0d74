#pragma once

#include <QModelIndexList>
#include <QObject>

class QAbstractItemModel;
class QAbstractItemView;
class QPlainTextEdit;
class QTextEdit;

namespace VELIX {

/// Lets Ctrl+C copy in lists, tables, trees and read-only texts although the window's menu uses
/// the key for something else: the focused widget claims it before the menu sees it.
class CopyFilter : public QObject
{
    Q_OBJECT

public:
    /// Item views copy the selected cells as copyText() gives them, without hidden columns.
    static void install(QAbstractItemView* view);
    /// Texts copy their own selection.
    static void install(QTextEdit* text);
    static void install(QPlainTextEdit* text);

    /// The cells as lines of tab-separated texts, in the order of the model whatever the order of
    /// `indexes`. Gaps in a selection become empty cells; the first column of a tree is indented
    /// by two blanks per level. Tabs and line ends inside a cell become blanks.
    /// \param headers puts the column titles above and row titles that are texts to the left.
    [[nodiscard]] static QString copyText(const QAbstractItemModel& model,
                                          const QModelIndexList& indexes, bool headers);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit CopyFilter(QObject* parent);
};

} // namespace VELIX
