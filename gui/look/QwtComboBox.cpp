#include "gui/look/QwtComboBox.h"

namespace VELIX {

QwtComboBox::QwtComboBox(QWidget* parent) : QComboBox(parent)
{
    connect(this, qOverload<int>(&QComboBox::activated), this, &QwtComboBox::slotActivated);
}

void QwtComboBox::selectText(const QString& text)
{
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void QwtComboBox::selectData(int value)
{
    setCurrentIndex(findData(value));
}

void QwtComboBox::slotActivated(int index)
{
    // Taken first: a receiver of the text may refill the box.
    const int value = itemData(index).toInt();
    emit signalActivated(itemText(index));
    emit signalActivated(value);
}

} // namespace VELIX
