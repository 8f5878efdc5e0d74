#pragma once

#include <QCoreApplication>
#include <QString>

#include <set>
#include <string>

namespace VELIX {

/// Why the map has no tiles: a diagnostic line for each cause, and a sentence on the map
/// itself while none is visible.
class MapTileNotice
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::MapTileNotice)

public:
    /// Takes a reason as the map gives it; each one is printed once.
    void fail(const char* url, const char* reason);
    /// Whether some tile failed.
    [[nodiscard]] bool hasReason() const { return !mReason.isEmpty(); }
    /// Forgets what was said of the last server.
    void reset();
    /// Returns what the map says; empty: nothing. The first time not before all requests have
    /// failed.
    QString update(bool tilesInSight, bool loading);

private:
    QString mReason; ///< the last one, in the language of the program
    std::set<std::string> mPrinted;
    bool mShown = false;
};

} // namespace VELIX
