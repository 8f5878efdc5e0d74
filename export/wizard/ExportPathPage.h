#pragma once

#include <QWizardPage>

#include <string>

class QLineEdit;

namespace VELIX {

class DialogService;
class ExportNote;

/// The first page of an export wizard: folder and name of the file to write.
///
/// It can only be left for a file that can be written, and not over an existing one unasked.
class ExportPathPage : public QWizardPage
{
    Q_OBJECT

public:
    /// Both texts (UTF-8) belong to the wizard's options and follow the editors at once.
    ExportPathPage(DialogService& dialogs, std::string& directory, std::string& fileName,
                   QWidget* parent = nullptr);

    void initializePage() override;
    bool validatePage() override;

    /// Returns why this file cannot be written, as a sentence for the user; empty if it can.
    static QString problem(const QString& directory, const QString& fileName);

protected:
    /// Returns the title of the folder chooser.
    virtual QString chooserTitle() const = 0;
    /// Shows what the user should know before anything is written; an empty sentence hides it.
    void setRemark(const QString& sentence);
    /// Shows, as a tool tip, what the name of the file can bring about.
    void setFileHint(const QString& sentence);

private slots:
    void slotPath(const QString& path);
    void slotPathSelect();
    void slotFile(const QString& file);

private:
    void createLayout();
    QString directory() const;
    QString fileName() const;

    DialogService& mDialogs;
    std::string& mDirectory;
    std::string& mFileName;
    QLineEdit* mPathEdit;
    QLineEdit* mFileEdit;
    ExportNote* mProblem;
    ExportNote* mRemark;
    QString mReplaced; ///< the existing file that the user agreed to replace
};

} // namespace VELIX
