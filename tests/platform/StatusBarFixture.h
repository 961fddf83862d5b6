#pragma once

#include "platform/linux/DesktopStatusBar.h"
#include "tests/support/VirtualDesktop.h"

#include <QDBusMessage>
#include <QEnterEvent>
#include <QPushButton>
#include <QRect>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace tarvo {

/// A flat button with an icon of one colour, which counts what it sees.
class ColouredButton final : public QPushButton {
public:
    explicit ColouredButton(const QColor &colour);

    void setColour(const QColor &colour);

    int entries = 0;
    int clicks = 0;

protected:
    void enterEvent(QEnterEvent *event) override;
};

/// Notes what StatusNotifierItems and their menus say to the session bus.
class ItemSignals final : public QObject {
    Q_OBJECT

public:
    ItemSignals();

    QStringList members; ///< the names of the signals, in order

private Q_SLOTS:
    void heard(const QDBusMessage &message) { members.append(message.member()); }
};

/// @return the smallest rectangle that holds all pixels of @p colour on the screen; empty when there are none
QRect areaOf(const QColor &colour);

std::unique_ptr<Program> startTrayer(int height, const std::vector<std::string> &options = {});

/// A panel that hosts StatusNotifierItems, and whose XEmbed tray was taken from it.
std::unique_ptr<Program> startNotifierPanel();

/// Offers this process's bus connection to the host, as if it were an item.
void offerItemOfThisProcess();

/// Takes the tray selection for as long as it lives, and takes no icon in.
class TraySelection {
public:
    TraySelection();
    ~TraySelection();
    TraySelection(const TraySelection &) = delete;
    TraySelection &operator=(const TraySelection &) = delete;

private:
    XScreen m_screen;
    xcb_window_t m_window;
};

} // namespace tarvo
