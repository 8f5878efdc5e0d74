#pragma once

#include "core/RecordEntry.h"
#include "profile/CoordinateFilter.h"
#include "profile/ProfileModel.h"
#include "profile/ProfileVariant.h"
#include "profile/TextValue.h"

#include <QColor>
#include <QString>

#include <map>
#include <string>
#include <vector>

class QDomNode;

namespace VELIX {

/// Unit system in which values are shown.
enum EUnit : int { eUnitMetric = 0, eUnitImperial = 1 };

/// The loaded parameter profile and the decoding of messages by it.
///
/// Every view and export turns record entries into numbers and texts here. instance() is the
/// profile of the running program; tests make their own.
class Profile
{
public:
    static Profile& instance();
    explicit Profile(EUnit unit = eUnitMetric);

    /// Reads only the variant list of a file and remembers the file; 0 if it is no profile.
    int loadProfile(const QString& file);
    int loadVariants(const QString& file);
    /// Replaces the model by the file's elements of one variant ("" takes every element).
    /// 0 if it is no profile; the model is empty then. Chosen parameters start unselected.
    int loadProfile(const QString& file, const QString& variant);
    /// Loads the remembered file again for a variant.
    int setCurrentVariant(const QString& variant);
    const QString& currentVariant() const { return mCurrentVariant; }
    const std::vector<ProfileVariant>& variants() const { return mVariants; }
    /// Empties the model; the variant list stays.
    void clear();

    static int checkVariant(const QString& current, const QString& list);
    static int checkVariant(const QString& current, const QDomNode& node);

    void setCurrentUnit(EUnit unit) { mUnit = unit; }
    EUnit currentUnit() const { return mUnit; }

    ProfileInfo& data() { return mModel.info; }
    const ProfileInfo& data() const { return mModel.info; }
    bool isEmpty() const { return mModel.info.devices.empty(); }
    /// The parameters that the user chose, in profile order; valid until the next load.
    std::vector<const ProfileParameter*> selectedParameters() const;
    /// The parameter with a role, for example "GroundSpeed"; an empty one (id 0) if none has it.
    ProfileParameter getParameterFromVelixType(const QString& type) const;
    /// The enumeration of a parameter; null if it has none.
    const ProfileEnum* enumeration(const ProfileParameter& p) const;

    /// Integer without scaling; the type is the message's own (byte 1), the place the parameter's.
    int getInt(const RecordEntry& e, const ProfileParameter& p) const;
    int getInt(const RecordEntry& e) const;
    /// Number in the current unit system; state and colour tell the threshold band.
    /// Types without a decoder give 0 and leave state and colour as they were.
    double getDouble(const RecordEntry& e, const ProfileParameter& p, int& state, QColor& color,
                     bool scale);
    double getDouble(const RecordEntry& e, const ProfileParameter& p, bool scale);
    double getDouble(const RecordEntry& e, bool scale);
    /// Scaled number in the metric unit, whatever the unit system.
    double getMetric(const RecordEntry& e, const ProfileParameter& p);
    /// Display text without unit; only FLOAT texts are converted to the current unit system.
    QString getDataString(const RecordEntry& e, const ProfileParameter& p, int& state,
                          QColor& color);
    /// The same text appended as UTF-8, for exports; thresholds are not looked up.
    void appendDataString(const RecordEntry& e, const ProfileParameter& p, std::string& out);
    /// State and colour exactly as getDataString() gives them, without making the text.
    void getDataState(const RecordEntry& e, const ProfileParameter& p, int& state, QColor& color);

    /// The value behind a display text, before unit conversion. A walk that wants state and text
    /// of one sample takes it once, since each call advances the coordinate filter.
    TextValue textValue(const RecordEntry& e, const ProfileParameter& p);
    /// State and colour of such a value; what is not judged leaves them as they were.
    void judge(const ProfileParameter& p, const TextValue& value, int& state, QColor& color) const;
    QString text(const ProfileParameter& p, const TextValue& value) const;

    double convertUnit(const ProfileParameter& p, double value) const;
    void getThreshold(const ProfileParameter& p, double value, int& state, QColor& color) const;
    /// Always empty: the labels of a bit field come with its text.
    QString getEnumValue(int enumId, int value) const;

    static double calcCoordinate(double value);
    double calcCoordinateLat(double value, double time);
    double calcCoordinateLong(double value, double time);
    /// To be called before every walk in time order and every single look-up of a position.
    void resetCoordinates();

    /// The unit that a display text of this parameter is in: imperial only for FLOAT in the
    /// imperial system with a known conversion.
    QString textUnit(const ProfileParameter& p) const;
    /// The unit label of the current unit system, as lists of parameters show it.
    QString systemUnit(const ProfileParameter& p) const;
    /// Heading of a column of texts: "name [unit]" or "name".
    QString columnLabel(const ProfileParameter& p) const;

private:
    void addCanasType(const QString& name, int code);
    bool decode(const RecordEntry& e, const ProfileParameter& p, bool scale, double& value);
    double coordinate(const ProfileParameter& p, double value);
    void appendEnumText(const ProfileParameter& p, const TextValue& value, std::string& out) const;
    void appendText(const ProfileParameter& p, const TextValue& value, std::string& out) const;

    std::map<QString, int> mTypes;
    EUnit mUnit;
    std::vector<ProfileVariant> mVariants;
    QString mCurrentVariant;
    QString mFile;
    ProfileModel mModel;
    CoordinateFilter mCoordinates;
};

} // namespace VELIX
