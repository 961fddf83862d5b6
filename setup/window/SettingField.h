#pragma once

#include "setup/settings/SettingKeys.h"

#include <QVariant>
#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace tarvo {

/// One setting in the form: its value, what it does, how it is shipped, and what is wrong with it.
class SettingField final : public QWidget {
public:
    /// @param edited  called when the user changed the value
    SettingField(const SettingKey &key, const std::function<void()> &edited);

    const SettingKey &key() const { return m_key; }

    /// Takes @p value for the one in force; an invalid one is absent. It is shown unless the user has entered another.
    void setPresent(const QVariant &value);
    /// Shows the value in force, whatever the user has entered.
    void showPresent();

    /// @return the value as the form has it; invalid when the setting is to be absent
    QVariant value() const;
    /// @return whether the user has entered another value than the one in force
    bool isEdited() const;
    /// @return whether saving would change something: what the user entered, or the form of a value that the companion
    ///         would not understand
    bool isChanged() const;
    /// @return whether the value may be saved; what is wrong otherwise is shown beside it
    bool isValid() const;

private:
    QString shippedText() const;
    bool readsAs(const QVariant &flag) const;
    QString asText(const QVariant &value) const;
    void showFault();
    void applyColours();
    void changeEvent(QEvent *event) override;

    SettingKey m_key;
    QCheckBox *m_flag = nullptr; ///< of a flag only
    QLineEdit *m_text = nullptr; ///< of the others
    QLabel *m_explanation;
    QLabel *m_fault;
    QVariant m_present;
};

} // namespace tarvo
