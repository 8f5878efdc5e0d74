#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace VELIX {

/// Puts items in a row and goes on in a next row where the width ends, as words of a text do.
class WrapLayout : public QLayout
{
    Q_OBJECT

public:
    /// gap: pixels between items and between rows.
    WrapLayout(QWidget* parent, int gap);
    ~WrapLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(mItems.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& area) override;

private:
    int arrange(const QRect& area, bool move) const;

    std::vector<std::unique_ptr<QLayoutItem>> mItems;
    int mGap;
};

} // namespace VELIX
