#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

namespace VELIX {

/// A list of names and values over the map. Its width only grows while it shows the same
/// names, so that a replay does not shake it.
class MapValues : public QWidget
{
public:
    struct Row
    {
        QString label;
        QString value;
        QColor background; ///< the threshold's colour; invalid within the thresholds

        bool operator==(const Row&) const = default;
    };

    explicit MapValues(QWidget* parent = nullptr);

    /// Shows other names; the width is measured again.
    void setRows(std::vector<Row> rows);
    void setValue(std::size_t row, const QString& value, const QColor& background);
    [[nodiscard]] const std::vector<Row>& rows() const { return mRows; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void measure(const Row& row);
    [[nodiscard]] int rowHeight() const;

    std::vector<Row> mRows;
    int mLabelWidth = 0;
    int mValueWidth = 0;
};

} // namespace VELIX
