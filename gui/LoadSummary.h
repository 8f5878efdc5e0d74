#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <cstdint>

namespace VELIX {

class CardContainer;

/// Names what is loaded, for the status bar.
class LoadSummary
{
    Q_DECLARE_TR_FUNCTIONS(VELIX::DialogMain)

public:
    /// Returns "Cycle 3" or, for a flight index from 0 that the cycle has, "Cycle 3, flight 2".
    static QString cycle(const CardContainer& card, std::uint32_t cycle, int flight);
    /// Returns "1 file" or "3 files".
    static QString files(std::size_t count);
    /// Returns the name followed by the numbers of samples and identifiers of the working data.
    static QString withCounts(const QString& name, const CardContainer& card);
};

} // namespace VELIX
