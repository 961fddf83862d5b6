#pragma once

#include "setup/settings/Autostart.h"
#include "setup/settings/SettingStore.h"

#include <QVariantMap>
#include <QWidget>

#include <functional>
#include <vector>

class QCheckBox;
class QPushButton;
class QVBoxLayout;

namespace tarvo {

class SettingField;

/// The form of all settings.
class SettingsPage final : public QWidget {
public:
    /// What the page asks for.
    struct Handlers {
        std::function<void(const SettingChange &change)> save;
        std::function<void()> reset;
        std::function<void(const QString &problem)> showProblem;
    };

    explicit SettingsPage(Handlers handlers);

    /// Shows the values in force, except where the user has changed one and not saved it.
    void setPresent(const QVariantMap &settings);
    /// Shows the values in force, whatever was changed.
    void discardChanges();
    /// @return whether the user has changed something and not saved it
    bool isEdited() const;

private:
    void addStart(QVBoxLayout *form);
    void addFields(QVBoxLayout *form);
    void addButtons(QVBoxLayout *layout);
    void save();
    void edited();

    Handlers m_handlers;
    std::vector<SettingField *> m_fields;
    QPushButton *m_save = nullptr;
    QPushButton *m_discard = nullptr;
};

} // namespace tarvo
