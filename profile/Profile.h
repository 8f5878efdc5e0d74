#pragma once

#include "core/RecordEntry.h"
#include "profile/CoordinateFilter.h"
#include "profile/NumberFormat.h"
#include "profile/ProfileDecoder.h"
#include "profile/ProfileModel.h"
#include "profile/ProfileVariant.h"

#include <QColor>
#include <QString>

#include <map>
#include <vector>

class QDomNode;

namespace VELIX {

/// The loaded parameter profile, its variants and the unit system in which values are shown.
///
/// Every view and export turns record entries into numbers and texts through decoder() and labels
/// them by format(). instance() is the profile of the running program; tests make their own.
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
    /// Returns the parameters that the user chose, in profile order; valid until the next load.
    std::vector<const ProfileParameter*> selectedParameters() const;
    /// Returns the parameter with a role, for example "GroundSpeed"; an empty one (id 0) if none
    /// has it.
    ProfileParameter getParameterFromVelixType(const QString& type) const;
    /// Returns the enumeration of a parameter; null if it has none.
    const ProfileEnum* enumeration(const ProfileParameter& p) const;

    /// Decodes by what is loaded; valid until the unit system changes or this is destroyed.
    ProfileDecoder decoder() const { return {mModel, mUnit}; }
    /// The unit and decimals with which values of a parameter are shown.
    NumberFormat format(const ProfileParameter& p) const { return {p, mUnit}; }

    // The same decoding message by message: positions are judged by all those decoded through
    // these members since the last resetCoordinates().

    /// Returns the integer without scaling; the type is the message's own (byte 1).
    int getInt(const RecordEntry& e, const ProfileParameter& p) const;
    int getInt(const RecordEntry& e) const;
    /// Returns the number in the current unit system; state and colour are those of its threshold
    /// band. Types without a decoder give 0 and leave state and colour as they were.
    double getDouble(const RecordEntry& e, const ProfileParameter& p, int& state, QColor& color,
                     bool scale);
    double getDouble(const RecordEntry& e, const ProfileParameter& p, bool scale);
    double getDouble(const RecordEntry& e, bool scale);
    /// Returns the display text without unit; only FLOAT texts are converted to the current unit
    /// system.
    QString getDataString(const RecordEntry& e, const ProfileParameter& p, int& state,
                          QColor& color);

    double convertUnit(const ProfileParameter& p, double value) const;
    void getThreshold(const ProfileParameter& p, double value, int& state, QColor& color) const;
    /// Returns an empty text: the labels of a bit field come with its text.
    QString getEnumValue(int enumId, int value) const;

    static double calcCoordinate(double value);
    double calcCoordinateLat(double value, double time);
    double calcCoordinateLong(double value, double time);
    void resetCoordinates();

private:
    void addCanasType(const QString& name, int code);
    ParameterSample next(const RecordEntry& e, const ProfileParameter& p, bool scale);

    std::map<QString, int> mTypes;
    EUnit mUnit;
    std::vector<ProfileVariant> mVariants;
    QString mCurrentVariant;
    QString mFile;
    ProfileModel mModel;
    CoordinateFilter mCoordinates; ///< of the members that decode message by message
};

} // namespace VELIX
