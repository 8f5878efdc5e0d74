#pragma once

#include "gui/look/ColorButton.h"

#include <string>

namespace VELIX {

class DialogService;

/// The button of one colour among an export's options.
class ExportColorButton : public ColorButton
{
    Q_OBJECT

public:
    /// digits: RRGGBB. alpha: its opacity from 0 to 255; null for a colour that is always opaque.
    /// Both belong to the options and follow what the user chooses.
    ExportColorButton(DialogService& dialogs, std::string& digits, int* alpha,
                      QWidget* parent = nullptr);

    /// Shows the colour that the options have now.
    void refresh();
    /// Lets the user choose another one; nothing changes if the user cancels.
    void choose(const QString& title);

private:
    DialogService& mDialogs;
    std::string& mDigits;
    int* mAlpha;
};

} // namespace VELIX
