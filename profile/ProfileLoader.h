#pragma once

#include "profile/ProfileModel.h"
#include "profile/VariantFilter.h"

#include <QString>

#include <functional>
#include <map>

class QDomElement;

namespace VELIX {

/// Builds a profile model from the document of a profile file, for one variant.
///
/// Names of enumerations and thresholds are resolved while a parameter is read, so their lists
/// must precede the devices; unknown names quietly become 0.
class ProfileLoader
{
public:
    /// types: the codes of the data types by name; they must outlive the loader.
    ProfileLoader(const std::map<QString, int>& types, const QString& variant);

    ProfileModel load(const QDomElement& root);

private:
    void readUnits(const QDomElement& list);
    void readEnums(const QDomElement& list);
    void readThresholds(const QDomElement& list);
    void readDevice(const QDomElement& element);
    ProfileParameter readParameter(const QDomElement& element, const QString& device) const;
    void assignBits(ProfileDevice& device, const std::vector<ProfileParameter>& inFileOrder) const;
    void resolveUnits();
    void eachChild(const QDomElement& parent, const QString& name,
                   const std::function<void(const QDomElement&)>& read) const;

    const std::map<QString, int>& mTypes;
    VariantFilter mVariant;
    ProfileModel mModel;
    std::map<QString, int> mEnumIds;
    std::map<QString, int> mThresholdIds;
};

} // namespace VELIX
