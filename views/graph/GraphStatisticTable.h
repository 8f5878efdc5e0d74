#pragma once

#include "views/graph/model/GraphMarkers.h"

#include <QWidget>

#include <cstdint>

class QLabel;
class QTableWidget;

namespace VELIX {

class GraphModel;

/// Minimum, maximum and average of every shown trace between the markers, or in the visible range
/// while the markers coincide.
class GraphStatisticTable : public QWidget
{
    Q_OBJECT

public:
    explicit GraphStatisticTable(QWidget* parent = nullptr);

    /// Cheap while nothing in the graph has changed.
    void update(const GraphModel& model);

    /// What the figures are taken of, in words.
    QString heading() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void createTable();
    void showSpan(const GraphModel& model);
    void showRow(int row, const GraphModel& model, unsigned int trace);
    void setCell(int row, int column, const QString& text);
    void fitHeight();
    void fitHeadings();

    QLabel* mHeading;
    QTableWidget* mTable;
    std::uint64_t mRevision = ~std::uint64_t{0};
    GraphMarkers mMarkers;
};

} // namespace VELIX
