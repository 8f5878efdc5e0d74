#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace VELIX {

class DialogService;
class Project;
class Property;

/// Which file the project is kept in, whether it was changed since, and the questions about it.
///
/// Every run starts on its own "CurrentProject.xml". Opening a project or saving it under another
/// name makes that file the one that saving writes; quitting only ever writes the run's own file,
/// so that a user's file changes on request alone.
class ProjectController
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::DialogMain)

public:
    /// parent: the window that the questions belong to.
    ProjectController(Project& project, Property& settings, DialogService& dialogs,
                      QWidget* parent);

    /// Puts the run on its own file, whatever project was open last, and remembers it.
    void start(const QString& runFile);
    /// Reads the project that was remembered last; false if there is none.
    bool readLast();

    /// The selection was changed by the user.
    void setModified();
    bool isModified() const { return mModified; }
    /// The file that saving writes.
    const QString& file() const { return mFile; }
    /// Whether that is the run's own file and not one of the user's.
    bool isRunFile() const;

    /// Each of these asks what it has to; false if the user cancelled or a file failed, and then
    /// nothing has changed.
    [[nodiscard]] bool newProject();
    [[nodiscard]] bool openProject();
    [[nodiscard]] bool openFile(const QString& file);
    bool saveProject(bool saveAs);

    /// Keeps the state of the run for the next one, without asking.
    void saveOnQuit();

    /// A sentence about the last operation that failed; empty if it did not fail.
    const QString& lastError() const { return mLastError; }

private:
    bool askSaveProject();
    bool read(const QString& file);
    bool askFileName(QString& file);
    void remember(const QString& file);
    QString lastPath() const;

    Project& mProject;
    Property& mSettings;
    DialogService& mDialogs;
    QWidget* mParent;
    QString mRunFile;
    QString mFile;
    bool mModified = false;
    bool mRunFileOutdated = false; ///< the run's own file does not hold the selection in force
    QString mLastError;
};

} // namespace VELIX
