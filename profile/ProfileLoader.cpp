#include "profile/ProfileLoader.h"

#include "core/XmlHandler.h"
#include "profile/DataType.h"

#include <QDomElement>

#include <utility>

namespace VELIX {

namespace {

/// Typed access to the attributes of one element.
class Attributes
{
public:
    explicit Attributes(const QDomElement& element) : mMap(element.attributes()) {}

    QString text(const char* name) const
    {
        return XmlHandler().xmlGetStringAttribute(mMap, QString::fromLatin1(name), QString());
    }
    int integer(const char* name, int def = 0) const
    {
        return XmlHandler().xmlGetIntAttribute(mMap, QString::fromLatin1(name), def);
    }
    double real(const char* name, double def = 0.0) const
    {
        return XmlHandler().xmlGetDoubleAttribute(mMap, QString::fromLatin1(name), def);
    }

private:
    QDomNamedNodeMap mMap;
};

int codeOf(const std::map<QString, int>& codes, const QString& name)
{
    const auto found = codes.find(name);
    return found == codes.end() ? 0 : found->second;
}

const std::map<QString, int>& thresholdStates()
{
    static const std::map<QString, int> states = {
        {QStringLiteral("OK"), eThresholdOk},
        {QStringLiteral("WARNING"), eThresholdWarning},
        {QStringLiteral("LIMIT"), eThresholdLimit},
    };
    return states;
}

const std::map<QString, int>& errorTypes()
{
    static const std::map<QString, int> types = {
        {QStringLiteral("Info"), 1},
        {QStringLiteral("Warning"), 2},
        {QStringLiteral("Fault"), 3},
    };
    return types;
}

ECoordinate coordinateOf(const QString& role)
{
    if (role == QLatin1String("Latitude")) {
        return ECoordinate::Latitude;
    }
    return role == QLatin1String("Longitude") ? ECoordinate::Longitude : ECoordinate::None;
}

} // namespace

ProfileLoader::ProfileLoader(const std::map<QString, int>& types, const QString& variant)
    : mTypes(types), mVariant(variant)
{}

ProfileModel ProfileLoader::load(const QDomElement& root)
{
    const Attributes header(root);
    mModel.info.version = header.text("version");
    mModel.info.profileId = header.text("profileId");
    mModel.info.name = header.text("name");
    mModel.info.comment = header.text("comment");

    // One pass in document order, since names resolve against what comes before.
    for (QDomElement e = root.firstChildElement(); !e.isNull(); e = e.nextSiblingElement()) {
        if (!mVariant.takes(e)) {
            continue;
        }
        const QString name = e.nodeName();
        if (name == QLatin1String("UnitConversions")) {
            readUnits(e);
        } else if (name == QLatin1String("EnumList")) {
            readEnums(e);
        } else if (name == QLatin1String("ThresholdList")) {
            readThresholds(e);
        } else if (name == QLatin1String("Device")) {
            readDevice(e);
        }
    }
    resolveUnits();
    return std::move(mModel);
}

void ProfileLoader::eachChild(const QDomElement& parent, const QString& name,
                              const std::function<void(const QDomElement&)>& read) const
{
    for (QDomElement e = parent.firstChildElement(name); !e.isNull();
         e = e.nextSiblingElement(name)) {
        if (mVariant.takes(e)) {
            read(e);
        }
    }
}

void ProfileLoader::readUnits(const QDomElement& list)
{
    eachChild(list, QStringLiteral("Unit"), [this](const QDomElement& element) {
        const Attributes unit(element);
        const QString key = unit.text("unitMetric") + QLatin1Char('_') + unit.text("unitImperial");
        // A missing factor is 0 here, unlike the identity of a missing conversion.
        mModel.units[key] = {unit.real("factor"), unit.real("offset")};
    });
}

void ProfileLoader::readEnums(const QDomElement& list)
{
    eachChild(list, QStringLiteral("Enum"), [this](const QDomElement& element) {
        const int id = ProfileUid::next();
        ProfileEnum& enumeration = mModel.enums[id];
        enumeration.name = Attributes(element).text("name");
        mEnumIds[enumeration.name] = id;
        eachChild(element, QStringLiteral("Value"), [&enumeration](const QDomElement& child) {
            const Attributes value(child);
            enumeration.values[value.integer("val")] = {value.text("label"), ProfileUid::next()};
        });
    });
}

void ProfileLoader::readThresholds(const QDomElement& list)
{
    eachChild(list, QStringLiteral("Threshold"), [this](const QDomElement& element) {
        const int id = ProfileUid::next();
        std::vector<ProfileThr>& steps = mModel.thresholds[id];
        mThresholdIds[Attributes(element).text("name")] = id;
        eachChild(element, QStringLiteral("Value"), [&steps](const QDomElement& child) {
            const Attributes value(child);
            steps.push_back({value.real("val"), QColor(value.text("color")),
                             codeOf(thresholdStates(), value.text("state")), ProfileUid::next()});
        });
    });
}

void ProfileLoader::readDevice(const QDomElement& element)
{
    ProfileDevice device;
    device.name = Attributes(element).text("name");
    device.uid = ProfileUid::next();
    eachChild(element, QStringLiteral("ErrorMatrix"), [&device](const QDomElement& child) {
        const Attributes matrix(child);
        device.errorMatrices.push_back({matrix.integer("id"), matrix.text("name"), {}});
    });

    std::vector<ProfileParameter> inFileOrder;
    eachChild(element, QStringLiteral("Parameter"), [&](const QDomElement& child) {
        inFileOrder.push_back(readParameter(child, device.name));
    });
    assignBits(device, inFileOrder);
    for (const ProfileParameter& p : inFileOrder) {
        device.parameters[p.id] = p;
        mModel.parameters[p.id] = p;
        if (!p.velixDataType.isEmpty()) {
            mModel.roles[p.velixDataType] = p;
        }
    }
    mModel.info.devices.push_back(std::move(device));
}

ProfileParameter ProfileLoader::readParameter(const QDomElement& element,
                                              const QString& device) const
{
    const Attributes a(element);
    ProfileParameter p;
    p.name = a.text("name");
    p.fullName = device + QLatin1Char('/') + p.name;
    p.unitMetric = a.text("unitMetric");
    p.unitImperial = a.text("unitImperial");
    p.viewId = a.text("viewId");
    p.dataType = codeOf(mTypes, a.text("dataType"));
    p.velixDataType = a.text("velixDataType");
    p.enumId = codeOf(mEnumIds, a.text("enumId"));
    p.thresholdId = codeOf(mThresholdIds, a.text("thresholdId"));
    p.id = a.integer("id");
    p.startByte = a.integer("startByte");
    p.startBit = a.integer("startBit");
    p.endBit = a.integer("endBit");
    p.offset = a.real("offset");
    p.factor = a.real("factor", 1.0);
    p.precision = a.integer("precision", 6);
    p.errorType = codeOf(errorTypes(), a.text("errorType"));
    p.coordinate = coordinateOf(p.velixDataType);
    return p;
}

// All bits of a matrix share its identifier, so the map of the device would keep only the last.
void ProfileLoader::assignBits(ProfileDevice& device,
                               const std::vector<ProfileParameter>& inFileOrder) const
{
    for (FaultMatrix& matrix : device.errorMatrices) {
        for (const ProfileParameter& p : inFileOrder) {
            const bool oneBit = p.startBit == p.endBit && p.startBit >= 0 && p.startBit < 32;
            if (p.id == matrix.id && p.dataType == eBLong && oneBit) {
                matrix.bits[p.startBit] = p;
            }
        }
    }
}

// Conversions may follow the devices that need them.
void ProfileLoader::resolveUnits()
{
    const auto resolve = [this](ProfileParameter& p) {
        const auto found = mModel.units.find(p.unitMetric + QLatin1Char('_') + p.unitImperial);
        if (found != mModel.units.end()) {
            p.toImperial = found->second;
            p.hasConversion = true;
        }
    };
    for (ProfileDevice& device : mModel.info.devices) {
        for (auto& [id, p] : device.parameters) {
            resolve(p);
        }
        for (FaultMatrix& matrix : device.errorMatrices) {
            for (auto& [bit, p] : matrix.bits) {
                resolve(p);
            }
        }
    }
    for (auto& [id, p] : mModel.parameters) {
        resolve(p);
    }
    for (auto& [role, p] : mModel.roles) {
        resolve(p);
    }
}

} // namespace VELIX
