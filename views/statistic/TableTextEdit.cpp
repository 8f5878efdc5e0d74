#include "views/statistic/TableTextEdit.h"

#include "gui/look/CopyFilter.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextTable>

#include <algorithm>

namespace VELIX {

namespace {

/// Returns the selected part of a paragraph.
QString selectedPart(const QTextBlock& block, const QTextCursor& selection)
{
    const int from = std::max(selection.selectionStart() - block.position(), 0);
    const int to = std::min(selection.selectionEnd() - block.position(), block.length() - 1);
    QString part = block.text().mid(from, std::max(to - from, 0));
    return part.replace(QChar::LineSeparator, QLatin1Char('\n')).trimmed();
}

QString cellText(const QString& text)
{
    const QString name = text.simplified();
    return name.endsWith(QLatin1Char(':')) ? name.chopped(1).trimmed() : name;
}

/// Returns the selected cells of one table; a selection never has only a part of a cell.
QString selectedCells(const QTextCursor& selection)
{
    int firstRow = 0;
    int rows = 0;
    int firstColumn = 0;
    int columns = 0;
    selection.selectedTableCells(&firstRow, &rows, &firstColumn, &columns);
    const QTextTable* table = selection.currentTable();
    QStringList lines;
    for (int row = firstRow; row < firstRow + rows; ++row) {
        QStringList cells;
        for (int column = firstColumn; column < firstColumn + columns; ++column) {
            cells.append(cellText(table->cellAt(row, column).firstCursorPosition().block().text()));
        }
        lines.append(cells.join(QLatin1Char('\t')));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

TableTextEdit::TableTextEdit(QWidget* parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setCursorWidth(0); // a caret would promise that something can be typed
    setWordWrapMode(QTextOption::WordWrap);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    CopyFilter::install(this);
}

QString TableTextEdit::plainText(const QTextCursor& selection)
{
    if (selection.hasComplexSelection()) {
        return selectedCells(selection);
    }
    const QTextDocument* document = selection.document();
    QString text;
    const QTextTable* lastTable = nullptr;
    int lastRow = -1;
    bool first = true;
    for (QTextBlock block = document->findBlock(selection.selectionStart());
         block.isValid() && block.position() <= selection.selectionEnd(); block = block.next()) {
        const QTextCursor at(block);
        const QTextTable* table = at.currentTable();
        const int row = table == nullptr ? -1 : table->cellAt(at).row();
        const QString part = selectedPart(block, selection);
        if (table == nullptr && part.isEmpty()) {
            continue; // tables have empty paragraphs around them
        }
        if (!first) {
            text +=
                QLatin1Char(table != nullptr && table == lastTable && row == lastRow ? '\t' : '\n');
        }
        text += table == nullptr ? part : cellText(part);
        lastTable = table;
        lastRow = row;
        first = false;
    }
    return text;
}

QMimeData* TableTextEdit::createMimeDataFromSelection() const
{
    // Qt's own data fills itself late and would put its text over this one.
    auto* copied = new QMimeData;
    copied->setHtml(textCursor().selection().toHtml());
    copied->setText(plainText(textCursor()));
    return copied;
}

} // namespace VELIX
