#pragma once

#include <QComboBox>

namespace VELIX {

/// A selector that distinguishes the user's choices from the program's: only the user's are
/// signalled.
class QwtComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit QwtComboBox(QWidget* parent = nullptr);

    /// Makes the item with exactly this text current; no item when there is none.
    void selectText(const QString& text);
    /// Makes the first item with this data current; no item when there is none.
    void selectData(int value);

signals:
    /// The user chose an item; its text.
    void signalActivated(const QString& text);
    /// The user chose an item; its data (0 where that is no number).
    void signalActivated(int value);

private slots:
    void slotActivated(int index);
};

} // namespace VELIX
