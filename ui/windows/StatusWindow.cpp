#include "ui/windows/StatusWindow.h"

#include "status/DataAmounts.h"
#include "status/Situation.h"
#include "ui/look/Images.h"
#include "ui/windows/UsageBar.h"
#include "ui/windows/UsagePlot.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int iconSize = 48;
constexpr int leastWidth = 420;
constexpr int gap = 16; // around and between the groups

QLabel *valueLabel()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

StatusWindow::StatusWindow(std::function<StatusWindowContent()> content)
    : m_content(std::move(content))
    , m_icon(new QLabel)
    , m_summary(new QLabel)
    , m_plot(new UsagePlot)
{
    setWindowTitle(u"Tarvo"_s);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMinimumWidth(leastWidth);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap, gap, gap);
    addHead(*layout);
    layout->addSpacing(gap / 2);
    m_month = addAmount(*layout, qtTrId("StatusMonth"));
    m_threeDays = addAmount(*layout, qtTrId("StatusThreeDays"));
    layout->addWidget(new QLabel(qtTrId("StatusPlot")));
    layout->addWidget(m_plot, 1);
    layout->addSpacing(gap / 2);
    addRows(*layout);
    layout->addSpacing(gap / 2);
    addButtons(*layout);
    connect(&m_refreshing, &QTimer::timeout, this, &StatusWindow::refresh);
}

void StatusWindow::addHead(QVBoxLayout &layout)
{
    m_icon->setFixedSize(iconSize, iconSize);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    m_summary->setFont(large);
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_summary->setMinimumHeight(iconSize);
    auto *head = new QHBoxLayout;
    head->setSpacing(gap);
    head->addWidget(m_icon, 0, Qt::AlignTop);
    head->addWidget(m_summary, 1);
    layout.addLayout(head);
}

StatusWindow::Amount StatusWindow::addAmount(QVBoxLayout &layout, const QString &name)
{
    const Amount amount{.text = new QLabel, .bar = new UsageBar(name)};
    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel(name));
    row->addStretch();
    row->addWidget(amount.text);
    layout.addLayout(row);
    layout.addWidget(amount.bar);
    return amount;
}

void StatusWindow::addRows(QVBoxLayout &layout)
{
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setHorizontalSpacing(gap);
    for (const DetailRow &row : detailRows({}, {})) {
        QLabel *value = m_values.emplace_back(valueLabel());
        value->setAccessibleName(row.label);
        auto *label = new QLabel(row.label);
        label->setBuddy(value);
        form->addRow(label, value);
    }
    layout.addLayout(form);
}

void StatusWindow::addButtons(QVBoxLayout &layout)
{
    auto *buttons = new QDialogButtonBox;
    QPushButton *copy = buttons->addButton(qtTrId("StatusCopyDetails"), QDialogButtonBox::ActionRole);
    QPushButton *close = buttons->addButton(qtTrId("AboutClose"), QDialogButtonBox::RejectRole);
    connect(copy, &QPushButton::clicked, this, &StatusWindow::copyDetails);
    connect(close, &QPushButton::clicked, this, &QWidget::hide);
    layout.addWidget(buttons);
    close->setFocus();
}

void StatusWindow::present()
{
    show();
    raise();
    activateWindow();
}

void StatusWindow::showEvent(QShowEvent *event)
{
    refresh();
    m_refreshing.start(1s);
    QWidget::showEvent(event);
}

void StatusWindow::hideEvent(QHideEvent *event)
{
    m_refreshing.stop();
    QWidget::hideEvent(event);
}

void StatusWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(event);
}

void StatusWindow::refresh()
{
    const StatusWindowContent content = m_content();
    if (std::exchange(m_image, content.image) != content.image || m_icon->pixmap().isNull()) {
        m_icon->setPixmap(imageNamed(content.image).pixmap(QSize(iconSize, iconSize), devicePixelRatio()));
        setWindowIcon(applicationImage());
    }
    m_summary->setText(summaryOf(content.status));
    showAmounts(content.status);
    m_plot->setSamples(content.usage);
    const QList<DetailRow> rows = detailRows(content.status, content.device);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (m_values[i]->text() != rows[i].value)
            m_values[i]->setText(rows[i].value);
    }
}

void StatusWindow::showAmounts(const CompanionStatus &status)
{
    const bool known = answers(situationOf(status));
    const StatusSnapshot &snapshot = status.snapshot;
    const auto fill = [](const Amount &amount, const UsageBar::Amounts &amounts, bool told) {
        const QString text = told ? amountOfLimit(amounts.used, amounts.limit) : u"–"_s;
        amount.text->setText(text);
        const auto shown = [&](double value) { return told && isKnownAmount(value) ? value : 0; };
        amount.bar->setAmounts({shown(amounts.used), shown(amounts.reminder), shown(amounts.limit)}, text);
    };
    fill(m_month,
         {static_cast<double>(snapshot.m_useData), static_cast<double>(snapshot.details.reminderThreshold),
          static_cast<double>(snapshot.m_totalMonthData)},
         known && snapshot.details.countsMonth);
    fill(m_threeDays,
         {static_cast<double>(snapshot.details.threeDayUse), 0, static_cast<double>(snapshot.m_totalThreeData)}, known);
}

void StatusWindow::copyDetails() const
{
    const StatusWindowContent content = m_content();
    QGuiApplication::clipboard()->setText(supportText(content.status, content.device));
}

} // namespace tarvo
