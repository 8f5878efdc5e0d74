#pragma once

#include <QTabBar>

namespace VELIX {

/// Tabs with icons that stay visible in a narrow window: where their texts do not fit, all but
/// the current one shrink to their icon, and the tool tip has the text.
class PageTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit PageTabBar(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Whether a tab shows its icon only.
    bool isCompact(int index) const;

protected:
    QSize tabSizeHint(int index) const override;
    void tabInserted(int index) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();
    QSize compactSize(int index) const;
    int fullWidth() const;
};

} // namespace VELIX
