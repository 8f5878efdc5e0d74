#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace VELIX {

class DialogMain;

/// Operates the main window as a user would: clicks, chooses and waits.
class DemoStage
{
public:
    explicit DemoStage(DialogMain& window);

    DialogMain& window() { return mWindow; }

    /// Triggers an action of the menus, by its number; false if it is missing or disabled.
    bool trigger(int action);
    /// Clicks a button, by its object name.
    bool click(const char* button);
    /// Chooses a tab of the data window, by the object name of its view.
    bool showView(const char* view);
    /// Loads a whole power cycle, or one of its flights; counted from 0 as they are listed.
    bool loadCycle(int cycle);
    bool loadFlight(int cycle, int flight);
    /// Moves the cursor to a fraction 0..1 of the record.
    bool setPosition(double fraction);
    /// Lets the replay run until it has moved the cursor, and stops it.
    bool replay();

    /// Runs the program until the condition holds; false, and error() is the sentence, if that
    /// takes too long.
    bool waitFor(const std::function<bool()>& condition, const QString& sentence);
    static void runEventsFor(int milliseconds);

    /// Keeps the first sentence as the error; always returns false.
    bool fail(const QString& sentence);
    /// Returns what was not as a user would find it; empty if everything was.
    const QString& error() const { return mError; }

private:
    QString loaded() const;

    DialogMain& mWindow;
    QString mError;
};

} // namespace VELIX
