#include "setup/window/ChecksPage.h"

#include "setup/command/Report.h"
#include "setup/window/Buttons.h"
#include "setup/window/Marks.h"
#include "setup/window/TitledItems.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tarvo {

ChecksPage::ChecksPage(std::function<void()> checkAgain)
    : m_summary(new QLabel)
    , m_list(new TitledList)
    , m_copy(roomyButton(qtTrId("CopyReport")))
    , m_again(roomyButton(qtTrId("CheckAgain")))
{
    m_summary->setWordWrap(true);
    m_list->setAccessibleName(qtTrId("TabChecks"));
    m_copy->setEnabled(false);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_copy);
    buttons->addWidget(m_again);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    connect(m_again, &QPushButton::clicked, this, std::move(checkAgain));
    connect(m_copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(checksAsText(m_checks)); });
}

void ChecksPage::setChecking()
{
    m_summary->setText(qtTrId("Checking"));
    m_again->setEnabled(false);
}

void ChecksPage::setChecks(const QList<Check> &checks)
{
    QList<TitledItem> items;
    for (const Check &check : checks) {
        QStringList lines = check.details;
        if (!check.advice.id.isEmpty())
            lines.prepend(check.advice.shown());
        items.append({markIcon(check.mark), markText(check.mark), check.title(), lines.join(u'\n')});
    }
    m_checks = checks;
    m_list->setItems(items);
    const auto broken = std::ranges::find(checks, Mark::Broken, &Check::mark);
    if (broken != checks.end())
        m_list->setCurrentRow(static_cast<int>(broken - checks.begin()));
    m_summary->setText(isWhole(checks) ? qtTrId("ChainWhole") : qtTrId("ChainBroken"));
    m_again->setEnabled(true);
    m_copy->setEnabled(true);
}

} // namespace tarvo
