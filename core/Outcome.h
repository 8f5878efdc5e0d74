#pragma once

#include <QString>

#include <utility>

namespace VELIX {

/// How an operation ended.
struct Outcome
{
    bool ok = false;
    bool cancelled = false; ///< by the user, who needs no reason then
    QString reason;         ///< a sentence: why it failed, or what is missing from a success

    static Outcome success(QString reservation = {})
    {
        return {true, false, std::move(reservation)};
    }
    static Outcome cancellation() { return {false, true, {}}; }
    static Outcome failure(QString reason) { return {false, false, std::move(reason)}; }
};

} // namespace VELIX
