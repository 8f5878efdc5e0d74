#pragma once

#include "views/fault/ErrorColor.h"

#include <QString>
#include <QWidget>

/// The cell of one bit of a fault matrix: coloured by the bit's error type and state, with its
/// name written upwards. A bit without a type shows neither.
class WidgetErrorItem : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetErrorItem(QWidget* parent = nullptr);

    void setText(const QString& text);
    const QString& text() const { return mText; }
    /// Takes a VELIX::EErrorType.
    void setType(int type);
    int type() const { return mType; }
    /// Lights the cell or puts it out.
    void setErrorState(bool state);
    bool errorState() const { return mErrorState; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString mText;
    bool mErrorState = false;
    int mType = VELIX::eErrorNone;
};
