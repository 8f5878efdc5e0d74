#pragma once

#include "export/wizard/KmlSummarizer.h"

#include <QWizard>

namespace VELIX {

class DialogService;
class Property;

/// The wizard that collects what the KML export writes and where; the settings keep the answers.
class DialogExportKml : public QWizard
{
    Q_OBJECT

public:
    DialogExportKml(Property& settings, DialogService& dialogs, KmlSummarizer summarizer,
                    QWidget* parent = nullptr);

    /// Asks the user, beginning with the file name and the parameters that `options` has; false if
    /// the wizard was cancelled: neither `options` nor settings change.
    [[nodiscard]] bool getOptions(KmlExportOptions& options);

    /// Fills the pages from `start` (file name, parameters) and the settings (all else) and starts
    /// at the first one.
    void loadOptions(const KmlExportOptions& start);
    /// Writes the answers to the settings and to their file.
    void storeOptions();

    /// The answers so far.
    const KmlExportOptions& options() const { return mOptions; }

private:
    Property& mSettings;
    KmlSummarizer mSummarizer;
    KmlExportOptions mOptions;
};

} // namespace VELIX
