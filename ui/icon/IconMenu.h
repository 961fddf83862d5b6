#pragma once

#include "status/NewsHistory.h"
#include "status/Situation.h"

#include <QList>
#include <QMenu>
#include <QString>
#include <QTimer>

#include <functional>

namespace tarvo {

/// What the icon's menu says.
struct MenuContent {
    Situation situation = Situation::NoModem;
    QString summary{};
    Page clickPage = Page::None; ///< what a click on the icon opens; `None` when it opens no page
    bool hasMessages = false; ///< the page of the messages can be opened at present
    QList<ToldNews> news{};

    bool operator==(const MenuContent &) const = default;
};

/// The icon's menu. It has the same entries in the same order at all times, and does not change while it is open: what
/// is new is shown the next time. On the main thread.
class IconMenu {
public:
    /// What the entries do. Each is called on the main thread.
    struct Actions {
        std::function<void()> showStatus;
        std::function<void()> openModemPage;
        std::function<void()> openMessages; ///< empty where no such page is configured: then there is no such entry
        std::function<void(Page page)> openPage; ///< the page of a piece of news, or of the entry about the click
        std::function<void()> openSettings; ///< empty where there is no setup program: then there is no such entry
        std::function<void()> about;
        std::function<void()> quit;
    };

    explicit IconMenu(const Actions &actions);

    QMenu &menu() { return m_menu; }

    /// Shows @p content, now or as soon as the menu is closed.
    void setContent(const MenuContent &content);

private:
    QAction *add(const QString &text, const std::function<void()> &operation);
    void apply();
    void applyNews();

    const Actions m_actions;
    MenuContent m_content;
    Page m_clickPage = Page::None; ///< the one that the menu names, whatever the news made of the click meanwhile
    QMenu m_menu;
    QMenu m_newsMenu;
    QTimer m_open; ///< runs while the menu is open, with an end: a host may never say that it closed the menu
    QAction *m_summary = nullptr;
    QAction *m_click = nullptr;
    QAction *m_modemPage = nullptr;
    QAction *m_messages = nullptr; ///< null where no such page is configured
    QAction *m_settings = nullptr; ///< null where there is no setup program
};

} // namespace tarvo
