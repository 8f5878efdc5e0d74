#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace VELIX {

class DialogMain;

/// The main window in the hands of a user who is not there: clicks, chooses and waits.
class DemoStage
{
public:
    explicit DemoStage(DialogMain& window);

    DialogMain& window() { return mWindow; }

    /// An action of the menus, by its number. True if there is such an action and it is enabled.
    bool trigger(int action);
    /// A button, by its object name.
    bool click(const char* button);
    /// A tab of the data window, by the object name of its view.
    bool showView(const char* view);
    /// The whole of a power cycle, or one of its flights; counted from 0 as they are listed.
    bool loadCycle(int cycle);
    bool loadFlight(int cycle, int flight);
    /// Moves the cursor to a fraction 0..1 of the record.
    bool setPosition(double fraction);
    /// Lets the replay run until it has moved the cursor, and stops it.
    bool replay();

    /// Lets the program go on until the condition holds; false, and error() is the sentence, if it
    /// takes too long.
    bool waitFor(const std::function<bool()>& condition, const QString& sentence);
    static void runEventsFor(int milliseconds);

    /// Keeps the first sentence; always false.
    bool fail(const QString& sentence);
    /// What was not as a user would find it; empty if all was.
    const QString& error() const { return mError; }

private:
    QString loaded() const;

    DialogMain& mWindow;
    QString mError;
};

} // namespace VELIX
