#pragma once

#include "profile/Profile.h"
#include "tests/support/TestFile.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QXmlStreamWriter>

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

namespace VELIX::Test {

/// Small notation for profiles:
///
///     ProfileBuilder profile;
///     profile.conversion("C", "F", 1.8, 32).threshold("Hot", {{90, "yellow", "WARNING"}});
///     profile.device("EMU")
///         .parameter(500, "Oil Temp", "FLOAT")
///         .set("unitMetric", "C").set("unitImperial", "F").set("thresholdId", "Hot");
///     profile.load(target);
///
/// set() adds an attribute to the element written last. Values are at startByte 4 unless set.
class ProfileBuilder
{
public:
    struct Step
    {
        double value;
        const char* color;
        const char* state;
    };

    ProfileBuilder& conversion(const char* metric, const char* imperial, double factor,
                               double offset)
    {
        return add(mUnits, "Unit")
            .set("unitMetric", metric)
            .set("unitImperial", imperial)
            .set("factor", QString::number(factor, 'g', 17))
            .set("offset", QString::number(offset, 'g', 17));
    }
    ProfileBuilder& threshold(const char* name, std::initializer_list<Step> steps)
    {
        add(mThresholds, "Threshold").set("name", name);
        for (const Step& step : steps) {
            child(mThresholds, "Value")
                .set("val", QString::number(step.value, 'g', 17))
                .set("color", step.color)
                .set("state", step.state);
        }
        return *this;
    }
    ProfileBuilder& enumeration(const char* name,
                                const std::vector<std::pair<int, const char*>>& labels)
    {
        add(mEnums, "Enum").set("name", name);
        for (const auto& [value, label] : labels) {
            child(mEnums, "Value").set("val", QString::number(value)).set("label", label);
        }
        return *this;
    }
    ProfileBuilder& variant(const char* name)
    {
        return add(mVariants, "Variant").set("name", name).set("id", name);
    }
    ProfileBuilder& device(const char* name) { return add(mDevices, "Device").set("name", name); }
    ProfileBuilder& parameter(int id, const QString& name, const char* dataType)
    {
        return child(mDevices, "Parameter")
            .set("name", name)
            .set("id", QString::number(id))
            .set("startByte", "4")
            .set("dataType", dataType);
    }
    ProfileBuilder& matrix(int id, const char* name)
    {
        return child(mDevices, "ErrorMatrix").set("id", QString::number(id)).set("name", name);
    }
    ProfileBuilder& set(const char* attribute, const char* value)
    {
        return set(attribute, QString::fromUtf8(value));
    }
    ProfileBuilder& set(const char* attribute, const QString& value)
    {
        const QString name = QString::fromUtf8(attribute);
        for (auto& known : mLast->attributes) {
            if (known.first == name) {
                known.second = value;
                return *this;
            }
        }
        mLast->attributes.emplace_back(name, value);
        return *this;
    }

    QString xml() const
    {
        QString text;
        QXmlStreamWriter out(&text);
        out.setAutoFormatting(true);
        out.writeStartDocument();
        out.writeStartElement(QStringLiteral("CanAerospaceProfile"));
        out.writeAttribute(QStringLiteral("name"), QStringLiteral("Test"));
        section(out, "Variants", mVariants);
        section(out, "UnitConversions", mUnits);
        section(out, "EnumList", mEnums);
        section(out, "ThresholdList", mThresholds);
        for (const Element& device : mDevices) {
            write(out, device);
        }
        out.writeEndDocument();
        return text;
    }
    bool write(const QString& path) const { return writeText(path, xml()); }
    /// Loads the profile as the program does, from a file; no parameter is selected then.
    bool load(Profile& profile, const QString& variantName = QString()) const
    {
        return loadText(profile, xml(), variantName);
    }
    /// The same for a profile that is given as text.
    static bool loadText(Profile& profile, const QString& xml,
                         const QString& variantName = QString())
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Profile.xml"));
        return writeText(path, xml) && profile.loadProfile(path, variantName) != 0;
    }

    /// Marks every parameter as chosen by the user.
    static void selectAll(Profile& profile)
    {
        for (ProfileDevice& device : profile.data().devices) {
            for (auto& [id, parameter] : device.parameters) {
                parameter.selected = true;
            }
        }
    }
    /// Marks these parameters and no other.
    static void select(Profile& profile, std::initializer_list<int> ids)
    {
        for (ProfileDevice& device : profile.data().devices) {
            for (auto& [id, parameter] : device.parameters) {
                parameter.selected = std::find(ids.begin(), ids.end(), id) != ids.end();
            }
        }
    }
    /// What is selected, as "Lane A/Oil, Lane B/Oil".
    static QString selection(const Profile& profile)
    {
        QStringList names;
        for (const ProfileParameter* parameter : profile.selectedParameters()) {
            names.append(parameter->fullName);
        }
        return names.join(QStringLiteral(", "));
    }

private:
    struct Element
    {
        QString tag;
        std::vector<std::pair<QString, QString>> attributes;
        std::vector<Element> children;
    };
    using Elements = std::vector<Element>;

    static bool writeText(const QString& path, const QString& xml)
    {
        return writeFile(path, xml.toUtf8());
    }
    ProfileBuilder& add(Elements& list, const char* tag)
    {
        list.push_back({QString::fromUtf8(tag), {}, {}});
        mLast = &list.back();
        return *this;
    }
    ProfileBuilder& child(Elements& list, const char* tag)
    {
        return add(list.back().children, tag);
    }
    static void write(QXmlStreamWriter& out, const Element& element)
    {
        out.writeStartElement(element.tag);
        for (const auto& [name, value] : element.attributes) {
            out.writeAttribute(name, value);
        }
        for (const Element& inner : element.children) {
            write(out, inner);
        }
        out.writeEndElement();
    }
    static void section(QXmlStreamWriter& out, const char* tag, const Elements& elements)
    {
        if (!elements.empty()) {
            write(out, {QString::fromUtf8(tag), {}, elements});
        }
    }

    Elements mVariants;
    Elements mUnits;
    Elements mEnums;
    Elements mThresholds;
    Elements mDevices;
    Element* mLast = nullptr;
};

} // namespace VELIX::Test
