#include "ui/icon/IconMenu.h"

#include <QAction>
#include <QCoreApplication>
#include <QLocale>

#include <chrono>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// @return @p text for a menu, where a lone ampersand would underline the next letter
QString menuText(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

QString clickText(Page page)
{
    switch (page) {
    case Page::Firmware:
        return qtTrId("MenuOpenFirmwarePage");
    case Page::DataLimit:
        return qtTrId("MenuOpenDataLimitPage");
    default:
        return qtTrId("MenuOpenHomePage");
    }
}

QString newsText(const ToldNews &told)
{
    return menuText(u"%1   %2"_s.arg(QLocale().toString(told.time, QLocale::ShortFormat), told.news.text));
}

} // namespace

IconMenu::IconMenu(const Actions &actions)
    : m_actions(actions)
{
    m_summary = add({}, actions.showStatus);
    m_menu.addSeparator();
    m_click = add({}, [this] { m_actions.openPage(m_clickPage); });
    m_modemPage = add(qtTrId("MenuOpenModemPage"), actions.openModemPage);
    if (actions.openMessages)
        m_messages = add(qtTrId("MenuOpenMessages"), actions.openMessages);
    m_newsMenu.setTitle(qtTrId("MenuRecentNews"));
    m_menu.addMenu(&m_newsMenu);
    m_menu.addSeparator();
    if (actions.openSettings)
        m_settings = add({}, actions.openSettings);
    add(qtTrId("MenuAbout"), actions.about);
    add(qtTrId("MenuQuit"), actions.quit);
    m_open.setSingleShot(true);
    QObject::connect(&m_menu, &QMenu::aboutToShow, &m_open, [this] { m_open.start(1min); });
    QObject::connect(&m_open, &QTimer::timeout, &m_menu, [this] {
        if (m_menu.isVisible())
            m_open.start(1min);
        else
            apply();
    });
    const auto closed = [this] {
        m_open.stop();
        apply();
    };
    // Not at once: the entry that was chosen is still to do its work.
    QObject::connect(&m_menu, &QMenu::aboutToHide, &m_menu, closed, Qt::QueuedConnection);
    apply();
}

QAction *IconMenu::add(const QString &text, const std::function<void()> &operation)
{
    QAction *action = m_menu.addAction(text);
    QObject::connect(action, &QAction::triggered, &m_menu, [operation] { operation(); });
    return action;
}

void IconMenu::setContent(const MenuContent &content)
{
    if (content == m_content)
        return;
    m_content = content;
    if (!m_open.isActive())
        apply();
}

void IconMenu::apply()
{
    m_summary->setText(menuText(m_content.summary));
    m_clickPage = m_content.clickPage;
    m_click->setText(clickText(m_clickPage));
    m_click->setEnabled(m_clickPage != Page::None);
    m_modemPage->setEnabled(isPolled(m_content.situation));
    if (m_messages)
        m_messages->setEnabled(m_content.hasMessages);
    if (m_settings)
        m_settings->setText(wantsSetup(m_content.situation) ? qtTrId("MenuSetUpModem") : qtTrId("MenuSettings"));
    applyNews();
}

void IconMenu::applyNews()
{
    m_newsMenu.setEnabled(!m_content.news.isEmpty());
    m_newsMenu.clear();
    for (const ToldNews &told : m_content.news) {
        QAction *action = m_newsMenu.addAction(newsText(told));
        action->setEnabled(told.news.page != Page::None);
        QObject::connect(action, &QAction::triggered, &m_newsMenu,
                         [this, page = told.news.page] { m_actions.openPage(page); });
    }
}

} // namespace tarvo
