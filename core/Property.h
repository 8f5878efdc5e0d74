#pragma once

#include <map>
#include <string>

namespace VELIX {

/// The settings store: a flat map from key to text, kept as a small XML file.
///
/// Readers bring their own default; nothing is written to disk until a caller asks for it.
class Property
{
public:
    static Property& instance();

    void setConfigFile(const std::string& path);

    /// Merges the remembered file into the map; keys that the file lacks are kept. Always 1.
    int readXmlFile();
    int readXmlFile(const std::string& path);
    /// Writes every key whose value is not empty; the old file survives a failed write. A file that
    /// could not be read before is kept beside it with ".broken" appended. Always 1.
    int writeXmlFile();
    int writeXmlFile(const std::string& path);

    /// Returns the stored text, or the default if the key is absent (an empty text is returned as
    /// empty).
    std::string getString(const std::string& key, const std::string& def) const;
    /// Returns the leading decimal number of the text; 0 if it does not begin with one.
    int getInt(const std::string& key, int def) const;
    double getDouble(const std::string& key, double def) const;
    /// Returns true only for the texts "true", "TRUE" and "True".
    bool getSwitch(const std::string& key, bool def) const;

    void setString(const std::string& key, const std::string& value);
    void setInt(const std::string& key, int value);
    /// Stores a number with six significant digits.
    void setDouble(const std::string& key, double value);
    void setSwitch(const std::string& key, bool value);

private:
    const std::string* find(const std::string& key) const;

    std::map<std::string, std::string> mValues;
    std::string mConfigFile;
    std::string mBrokenFile; ///< could not be read: kept aside before the next write replaces it
};

} // namespace VELIX
