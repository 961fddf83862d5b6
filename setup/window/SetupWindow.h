#pragma once

#include "platform/DynamicStore.h"
#include "setup/checks/Survey.h"
#include "setup/settings/SettingStore.h"

#include <QHash>
#include <QTimer>
#include <QWidget>

#include <memory>

class QLabel;
class QPushButton;
class QTabWidget;

namespace tarvo {

class ChecksPage;
class DevicesPage;
class SettingsPage;

/// The program's window: devices, checks and settings.
///
/// Gateways are asked while the user looks at the list of devices, each once for as long as its device stays as it is.
class SetupWindow final : public QWidget {
public:
    /// @param services, survey  outlive the window
    SetupWindow(const SetupServices &services, Survey &survey);
    ~SetupWindow() override;

private:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

    void addMessageBar(QWidget *bar);
    void watch();
    /// Shows devices and settings as they are now.
    void refresh();
    void showDevices(const QVariantMap &settings);
    void askGateways(const QList<Device> &devices, const QVariantMap &settings);
    void check();

    void change(const SettingChange &change, Damaged damaged);
    void reset();
    /// Tells what became of writing settings, and lets the companion know.
    void written(const SettingsWritten &result);
    void restarted(ActionResult result);
    void tell(const QString &message);
    /// Asks the user, and calls @p confirmed if the answer is yes.
    void ask(const QString &question, const QString &yes, std::function<void()> confirmed);

    const SetupServices &m_services;
    Survey &m_survey;
    QTabWidget *m_tabs;
    DevicesPage *m_devices;
    ChecksPage *m_checks;
    SettingsPage *m_settings;
    QWidget *m_bar;
    QLabel *m_message = nullptr;
    QPushButton *m_start = nullptr; ///< shown when the companion is not running
    QString m_savedText; ///< what was told of the settings that the companion is being told of
    QTimer m_refresh;
    std::unique_ptr<DynamicStoreSession> m_network;
    /// What gateways answered, by interface and gateway; nil while the answer is to come.
    QHash<QPair<int, QString>, std::optional<bool>> m_answers;
    bool m_mayClose = false;
};

} // namespace tarvo
