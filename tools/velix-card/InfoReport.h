#pragma once

#include <QJsonObject>

#include <vector>

namespace VELIX {

class CardContainer;
class Profile;
struct RecordFlight;

/// Returns the listing of a card: its files and cycles.
QJsonObject cardReport(const CardContainer& card);

/// Returns what is loaded: flights, record, events; with times (s) also the values and fault words
/// there.
QJsonObject recordReport(CardContainer& card, Profile& profile,
                         const std::vector<RecordFlight>& flights,
                         const std::vector<double>& times);

} // namespace VELIX
