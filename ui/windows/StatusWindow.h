#pragma once

#include "status/DetailRows.h"
#include "status/UsageHistory.h"

#include <QList>
#include <QTimer>
#include <QWidget>

#include <functional>

class QFormLayout;
class QLabel;
class QVBoxLayout;

namespace tarvo {

class UsageBar;
class UsagePlot;

/// What the status window shows.
struct StatusWindowContent {
    QString image; ///< the icon's, by name
    CompanionStatus status;
    DeviceDetails device;
    QList<UsageHistory::Sample> usage; ///< since the modem was plugged in
};

/// How things stand, in a small window. While it is shown it follows what changes; hidden, it does nothing.
class StatusWindow : public QWidget {
    Q_OBJECT

public:
    /// @param content  tells what is to be shown; called when the window appears and every second from then on
    explicit StatusWindow(std::function<StatusWindowContent()> content);

    /// Shows the window in front, with the keyboard.
    void present();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Amount {
        QLabel *text;
        UsageBar *bar;
    };

    void addHead(QVBoxLayout &layout);
    Amount addAmount(QVBoxLayout &layout, const QString &name);
    void addRows(QVBoxLayout &layout);
    void addButtons(QVBoxLayout &layout);
    void refresh();
    void showAmounts(const CompanionStatus &status);
    void copyDetails() const;

    const std::function<StatusWindowContent()> m_content;
    QTimer m_refreshing;
    QString m_image;
    QLabel *m_icon;
    QLabel *m_summary;
    Amount m_month{};
    Amount m_threeDays{};
    UsagePlot *m_plot;
    QList<QLabel *> m_values; ///< in the order of `detailRows`
};

} // namespace tarvo
