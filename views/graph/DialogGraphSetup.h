#pragma once

#include <QDialog>

#include <string>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;

namespace VELIX {

class ColorButton;
struct GraphData;

/// Edits the display settings of the graph in place; every change is reported at once.
class DialogGraphSetup : public QDialog
{
    Q_OBJECT

public:
    /// settings: outlive the dialog.
    DialogGraphSetup(QWidget* parent, GraphData& settings);

    /// Loads the controls from the settings, silently.
    void updateDialog();

signals:
    void signalChanged();

private slots:
    void slotBackgroundColor();
    void slotGridOn(int state);
    void slotGridColor();
    void slotLabelColor();
    void slotLabelBackColor();
    void slotCursorOn(int state);
    void slotCursorMode(int mode);
    void slotLegendOn(int state);
    void slotAutoscaleOn(int state);
    void slotYmin(const QString& text);
    void slotYmax(const QString& text);
    void slotClose();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void createColors(QFormLayout* form);
    void createSwitches(QFormLayout* form);
    ColorButton* colorButton(const char* name, void (DialogGraphSetup::*slot)());
    QCheckBox* switchBox(const QString& text, const char* name,
                         void (DialogGraphSetup::*slot)(int));
    QLineEdit* limitEdit(const QString& text, const char* name,
                         void (DialogGraphSetup::*slot)(const QString&));
    void chooseColor(std::string& color, ColorButton* button);
    void setSwitch(bool& value, int state);
    void setLimit(double& value, const QString& text);
    void showScale();

    GraphData& mData;
    bool mUpdating = false; ///< the dialog itself writes its controls
    ColorButton* mBackColor = nullptr;
    ColorButton* mGridColor = nullptr;
    ColorButton* mLabelColor = nullptr;
    ColorButton* mLabelBackColor = nullptr;
    QCheckBox* mGridOn = nullptr;
    QCheckBox* mCursorOn = nullptr;
    QComboBox* mCursorMode = nullptr;
    QCheckBox* mLegendOn = nullptr;
    QCheckBox* mAutoscaleOn = nullptr;
    QLineEdit* mYmin = nullptr;
    QLineEdit* mYmax = nullptr;
};

} // namespace VELIX
