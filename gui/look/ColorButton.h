#pragma once

#include <QColor>
#include <QPushButton>

namespace VELIX {

/// A button that shows a colour, which pressing it lets the user choose.
///
/// The colour is a framed field in front of the text: a button in that colour could not be
/// distinguished from a disabled one. Where the colour lets things shine through, its right half
/// shows that.
class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorButton(const QString& text, QWidget* parent = nullptr);

    void setColor(const QColor& color);
    const QColor& color() const { return mColor; }

private:
    QColor mColor;
};

} // namespace VELIX
