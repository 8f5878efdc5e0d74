#include "views/table/ColumnWidth.h"

#include "profile/Profile.h"

#include <QTableWidget>

#include <algorithm>
#include <cstdint>

namespace VELIX {

namespace {

/// Rows whose texts decide how wide a column becomes. Measuring all 36,000 of an hour would take
/// seconds.
constexpr int kMeasuredRows = 24;

} // namespace

int widestText(const QTableWidget& table, int column)
{
    const QFontMetrics metrics = table.fontMetrics();
    const int rows = table.rowCount();
    const int measured = std::min(rows, kMeasuredRows);
    const auto firstRow = [=](int part) {
        return static_cast<int>(std::int64_t{part} * rows / measured);
    };
    int width = 0;
    for (int part = 0; part < measured; ++part) {
        // A row without a sample is skipped: slow parameters have gaps.
        for (int row = firstRow(part); row < firstRow(part + 1); ++row) {
            if (const QTableWidgetItem* item = table.item(row, column)) {
                width = std::max(width, metrics.horizontalAdvance(item->text()));
                break;
            }
        }
    }
    return width;
}

// All values count, since the rare ones must not be cut off either.
int widestLabel(const Profile& profile, const ProfileParameter& p, const QFontMetrics& metrics)
{
    const ProfileEnum* labels = profile.enumeration(p);
    if (labels == nullptr) {
        return 0;
    }
    int width = 0;
    for (const auto& [number, value] : labels->values) {
        const QString text = QStringLiteral("%1: %2").arg(number).arg(value.label);
        width = std::max(width, metrics.horizontalAdvance(text));
    }
    return width;
}

} // namespace VELIX
