#pragma once

#include "core/Outcome.h"

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
    /// Reads the project that was remembered last. Fails without a reason if there is none.
    Outcome readLast();

    /// Notes that the user changed the selection.
    void setModified();
    bool isModified() const { return mModified; }
    /// The file that saving writes.
    const QString& file() const { return mFile; }
    /// Whether that is the run's own file and not one of the user's.
    bool isRunFile() const;

    /// Each of these asks what it has to. If the user cancels or a file fails, nothing changes.
    [[nodiscard]] Outcome newProject();
    [[nodiscard]] Outcome openProject();
    [[nodiscard]] Outcome openFile(const QString& file);
    [[nodiscard]] Outcome saveProject(bool saveAs);

    /// Keeps the state of the run for the next one, without asking.
    void saveOnQuit();

private:
    Outcome askSaveProject();
    Outcome read(const QString& file);
    QString askFileName();
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
};

} // namespace VELIX
