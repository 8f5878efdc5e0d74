#pragma once

#include "export/CsvExportOptions.h"
#include "export/KmlExportOptions.h"
#include "profile/Profile.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace VELIX {

/// The wishes of one call of velix-card.
struct CardOptions
{
    enum class Command { Info, Csv, Kml };

    Command command = Command::Info;
    QString card;
    QString profile;
    QString variant;
    EUnit unit = eUnitMetric;
    std::optional<std::uint32_t> cycle;
    int flight = -1;
    QStringList files;
    QStringList selected; ///< full names "Device/Name"
    std::vector<double> times;
    QString output; ///< empty: standard output
    CsvExportOptions csv;
    KmlExportOptions kml; ///< the parameters are those of `selected`

    bool hasSelection() const { return cycle.has_value() || !files.isEmpty(); }
};

/// The outcome of reading the arguments: options, or a text to show and the exit status.
struct ParsedOptions
{
    std::optional<CardOptions> options;
    QString message;
    int status = 0;
};

/// arguments: the program's name first.
ParsedOptions parseCardOptions(const QStringList& arguments);

} // namespace VELIX
