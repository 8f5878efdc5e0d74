#pragma once

#include <QWizardPage>

class QCheckBox;
class QGroupBox;
class QLabel;
class QSpinBox;

namespace VELIX {

class DialogService;
class ExportColorButton;
struct KmlExportOptions;

/// How the KML export draws the path: time step, line, curtain down to the terrain.
class DialogExportKmlOptions : public QWizardPage
{
    Q_OBJECT

public:
    /// The options belong to the wizard and follow the controls at once.
    DialogExportKmlOptions(DialogService& dialogs, KmlExportOptions& options,
                           QWidget* parent = nullptr);

    void initializePage() override;

private slots:
    void slotTimestamp(int seconds);
    void slotLineWidth(int pixels);
    void slotLineColor();
    void slotPolygon(bool on);
    void slotPolygonColor();
    void slotStandard(bool on);

private:
    void nameControls();
    void connectControls();
    void createLayout();
    QGroupBox* createLineGroup();

    KmlExportOptions& mOptions;
    QSpinBox* mTimestamp; // in tab order
    QSpinBox* mLineWidth;
    ExportColorButton* mLineColor;
    QCheckBox* mPolygon;
    ExportColorButton* mPolygonColor;
    QCheckBox* mStandard;
    QLabel* mPolygonLabel;
};

} // namespace VELIX
