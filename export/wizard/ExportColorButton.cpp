#include "export/wizard/ExportColorButton.h"

#include "gui/dialogs/DialogService.h"

namespace VELIX {

ExportColorButton::ExportColorButton(DialogService& dialogs, std::string& digits, int* alpha,
                                     QWidget* parent)
    : ColorButton(tr("Select"), parent), mDialogs(dialogs), mDigits(digits), mAlpha(alpha)
{}

void ExportColorButton::refresh()
{
    QColor color(QLatin1Char('#') + QString::fromStdString(mDigits));
    if (mAlpha != nullptr) {
        color.setAlpha(*mAlpha);
    }
    setColor(color);
}

void ExportColorButton::choose(const QString& title)
{
    const QColor chosen = mDialogs.color(window(), title, color(), mAlpha != nullptr);
    if (!chosen.isValid()) {
        return;
    }
    mDigits = chosen.name().mid(1).toStdString();
    if (mAlpha != nullptr) {
        *mAlpha = chosen.alpha();
    }
    refresh();
}

} // namespace VELIX
