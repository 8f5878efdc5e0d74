#include "gui/look/CopyFilter.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextEdit>
#include <QTreeView>
#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace VELIX {

namespace {

/// Row numbers from the root of the model down to a row; sorts as a tree shows its rows.
using RowPath = std::vector<int>;

RowPath pathOf(const QModelIndex& index)
{
    RowPath path;
    for (QModelIndex at = index; at.isValid(); at = at.parent()) {
        path.push_back(at.row());
    }
    std::reverse(path.begin(), path.end());
    return path;
}

QString cellText(const QVariant& value)
{
    QString text = value.toString();
    for (QChar& c : text) {
        if (c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r') ||
            c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
            c = QLatin1Char(' ');
        }
    }
    return text;
}

/// Row titles set by the program are texts; those that a model makes up are numbers.
bool hasRowTitles(const QAbstractItemModel& model)
{
    return model.rowCount() > 0 &&
           model.headerData(0, Qt::Vertical, Qt::DisplayRole).type() == QVariant::String;
}

QString headerLine(const QAbstractItemModel& model, const std::set<int>& columns, bool rowTitles)
{
    QStringList cells;
    if (rowTitles) {
        cells.append(QString());
    }
    for (const int column : columns) {
        cells.append(cellText(model.headerData(column, Qt::Horizontal, Qt::DisplayRole)));
    }
    return cells.join(QLatin1Char('\t'));
}

bool isColumnHidden(const QAbstractItemView* view, int column)
{
    if (const auto* table = qobject_cast<const QTableView*>(view)) {
        return table->isColumnHidden(column);
    }
    const auto* tree = qobject_cast<const QTreeView*>(view);
    return tree != nullptr && tree->isColumnHidden(column);
}

bool showsHeaders(const QAbstractItemView* view)
{
    if (const auto* table = qobject_cast<const QTableView*>(view)) {
        return !table->horizontalHeader()->isHidden();
    }
    const auto* tree = qobject_cast<const QTreeView*>(view);
    return tree != nullptr && !tree->isHeaderHidden();
}

void copySelection(const QAbstractItemView* view)
{
    if (view->model() == nullptr || view->selectionModel() == nullptr) {
        return;
    }
    QModelIndexList indexes = view->selectionModel()->selectedIndexes();
    indexes.erase(std::remove_if(indexes.begin(), indexes.end(),
                                 [view](const QModelIndex& index) {
                                     return isColumnHidden(view, index.column());
                                 }),
                  indexes.end());
    if (!indexes.isEmpty()) { // an empty selection leaves the clipboard as it is
        QGuiApplication::clipboard()->setText(
            CopyFilter::copyText(*view->model(), indexes, showsHeaders(view)));
    }
}

} // namespace

CopyFilter::CopyFilter(QObject* parent) : QObject(parent) {}

void CopyFilter::install(QAbstractItemView* view)
{
    view->installEventFilter(new CopyFilter(view));
}

void CopyFilter::install(QTextEdit* text)
{
    text->installEventFilter(new CopyFilter(text));
}

void CopyFilter::install(QPlainTextEdit* text)
{
    text->installEventFilter(new CopyFilter(text));
}

QString CopyFilter::copyText(const QAbstractItemModel& model, const QModelIndexList& indexes,
                             bool headers)
{
    std::map<RowPath, std::map<int, QModelIndex>> rows;
    std::set<int> columns;
    for (const QModelIndex& index : indexes) {
        rows[pathOf(index)].emplace(index.column(), index);
        columns.insert(index.column());
    }
    if (rows.empty()) {
        return {};
    }
    std::size_t topLevel = rows.begin()->first.size();
    for (const auto& [path, cells] : rows) {
        topLevel = std::min(topLevel, path.size());
    }

    const bool rowTitles = headers && hasRowTitles(model);
    QString text = headers ? headerLine(model, columns, rowTitles) : QString();
    for (const auto& [path, cells] : rows) {
        if (!text.isEmpty()) {
            text += QLatin1Char('\n');
        }
        if (rowTitles) {
            text += cellText(model.headerData(path.back(), Qt::Vertical, Qt::DisplayRole));
            text += QLatin1Char('\t');
        }
        text += QString(int(path.size() - topLevel) * 2, QLatin1Char(' '));
        for (const int column : columns) {
            if (column != *columns.begin()) {
                text += QLatin1Char('\t');
            }
            const auto cell = cells.find(column);
            if (cell != cells.end()) {
                text += cellText(cell->second.data(Qt::DisplayRole));
            }
        }
    }
    return text;
}

bool CopyFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) {
        return false;
    }
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        return false;
    }
    event->accept();
    if (event->type() == QEvent::ShortcutOverride) {
        return true;
    }
    if (const auto* view = qobject_cast<QAbstractItemView*>(watched)) {
        copySelection(view);
    } else if (auto* text = qobject_cast<QTextEdit*>(watched)) {
        text->copy();
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(watched)) {
        plain->copy();
    }
    return true;
}

} // namespace VELIX
