#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace tarvo {

/// The product's settings: one property list, loaded once and read from then on.
///
/// Top-level keys are modules; a module's value is a leaf (text, truth value, number), a dictionary or an array. Once
/// loaded, the readers may be called on any thread; the writers are for the main thread before other threads start.
class ConfigManager {
public:
    /// The one instance, made and loaded with `init` at the first call.
    static ConfigManager &sharedConfigManager();

    /// Finds `tarvo/Config.plist` in the user's, the system's and the data folders (XDG Base Directory) or beside the
    /// program, and loads the first that exists.
    ConfigManager();
    /// Loads the file at @p filePath, which must not be nil.
    explicit ConfigManager(const std::optional<QString> &filePath);
    /// Holds @p values, which come from no file.
    explicit ConfigManager(const QVariantMap &values);

    /// @return the module's value; nil when there is none
    std::optional<QVariant> getConfigurationByModule(const std::optional<QString> &module) const;
    /// @return from a dictionary the entry for @p key, from an array the element equal to @p key; else nil
    /// @throws std::out_of_range when the module is an array without such an element
    std::optional<QVariant> getConfigurationByModuleAndKey(const std::optional<QString> &module,
                                                           const std::optional<QString> &moduleKey) const;

    /// @return the module's value read as a flag; @p absent when there is none
    bool flag(const QString &module, bool absent = false) const;
    /// @return the module's text; nil when it is absent or no text
    std::optional<QString> text(const QString &module) const;

    // The writers change nothing, and return false, when an argument is nil or nothing was loaded. Nothing but `flush`
    // reaches the file. Nothing calls them at present.

    /// Gives @p module the value @p object, in the place of an earlier one. @return whether it has
    bool setConfigurationByModule(const std::optional<QString> &module, const std::optional<QVariant> &object);
    /// Puts @p value under @p key into a module that is a dictionary, or at the end of one that is an array, unless
    /// that has an equal element. @return whether there is such a module, of whatever kind
    bool setConfigurationByModuleKeyAndValue(const std::optional<QString> &module, const std::optional<QString> &key,
                                             const QVariant &value);
    /// Takes @p module out, if it is there. @return false also when the dictionary is empty
    bool removeConfigurationByModule(const std::optional<QString> &module);
    /// Takes @p moduleKey out of a module that is a dictionary, if it is there. @return whether there is such a module,
    /// of whatever kind
    bool removeConfigurationByModuleAndKey(const std::optional<QString> &module,
                                           const std::optional<QString> &moduleKey);
    /// @return the whole dictionary itself, owned by the store; null when nothing was loaded
    QVariantMap *getConfiguration();
    /// Writes the dictionary back to the file it came from, whole or not at all.
    void flush() const;

    /// @return the file that the settings were read from, with its path; nil when none was found
    const std::optional<QString> &settingPath() const { return settingPath_; }
    /// @return why the file that was found could not be loaded, with its path; nil when nothing went wrong
    const std::optional<QString> &loadProblem() const { return loadProblem_; }
    /// @return the `settingDigest` of the file as it was read, damaged or not; empty when it was not found
    const QString &digest() const { return m_digest; }

private:
    void load();

    std::optional<QString> settingPath_;
    std::optional<QVariantMap> configDict_;
    std::optional<QString> loadProblem_;
    QString m_digest;
};

/// @return whether @p value is a text, and equal to @p text; a number never is
bool isText(const QVariant &value, const QString &text);

/// Reads @p value as a truth value: a number is true unless zero, a text when its first non-blank character is one of
/// "YyTt" or a digit 1 to 9. Nil is false.
bool boolValue(const std::optional<QVariant> &value);

} // namespace tarvo
