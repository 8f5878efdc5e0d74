#pragma once

#include "export/wizard/KmlSummarizer.h"

#include <QWizardPage>

class QCheckBox;
class QSpinBox;

namespace VELIX {

class DialogService;
class ExportColorButton;
class ExportSummary;

/// Which placemarks the KML export writes; the wizard's last page, with a summary of it all.
class DialogExportKmlPlacemark : public QWizardPage
{
    Q_OBJECT

public:
    /// The options and the summarizer belong to the wizard; the options follow the controls at
    /// once.
    DialogExportKmlPlacemark(DialogService& dialogs, KmlExportOptions& options,
                             const KmlSummarizer& summarizer, QWidget* parent = nullptr);

    void initializePage() override;

private slots:
    void slotPlacemark(bool on);
    void slotPlacemarkStep(int samples);
    void slotPlacemarkColor();
    void slotError(bool on);
    void slotLimit(int state);
    void slotWarning(int state);
    void slotErrorColor();

private:
    void nameControls();
    void connectControls();
    void createLayout();
    void updateSummary();

    KmlExportOptions& mOptions;
    const KmlSummarizer& mSummarizer;
    QCheckBox* mPlacemark; // in tab order
    QSpinBox* mStep;
    ExportColorButton* mColor;
    QCheckBox* mError;
    QCheckBox* mLimit;
    QCheckBox* mWarning;
    ExportColorButton* mErrorColor;
    QWidget* mPlacemarkDetails; ///< what only makes sense with placemarks of parameters
    QWidget* mErrorDetails;     ///< what only makes sense with placemarks of events
    ExportSummary* mSummary;
    bool mFilling = false; ///< the page itself writes its controls
};

} // namespace VELIX
