#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace VELIX {

/// The command line: options are registered first, then the arguments are parsed once.
///
/// Names include their leading "-" and match whole arguments only, case-sensitively.
class CmdLine
{
public:
    static CmdLine& instance();

    void addSwitch(const std::string& name, const std::string& description);
    void addParameter(const std::string& name, const std::string& description,
                      const std::string& def);

    /// Takes the argument vector with the program's name in front. Unknown arguments are reported
    /// and passed over. False if there was any.
    [[nodiscard]] bool parse(int argc, const char* const* argv);

    /// Returns whether the option occurred, however often; false for a name that was never
    /// registered.
    bool getSwitch(const std::string& name) const;
    /// Copies the given or default value. True if the option occurred. A name that was never
    /// registered has an empty value.
    bool getParameter(const std::string& name, std::string& value) const;

    /// Prints the options by name; a parameter shows its present value as its default.
    void printUsage() const;

private:
    enum class Kind : std::int32_t { Switch = 0, Parameter = 1 };

    struct Option
    {
        Kind kind = Kind::Switch;
        bool set = false;
        std::string description;
        std::string value;
    };

    std::string mProgramName;
    std::map<std::string, Option> mOptions;
};

} // namespace VELIX
