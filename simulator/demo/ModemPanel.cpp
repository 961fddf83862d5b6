#include "simulator/demo/ModemPanel.h"

#include "simulator/demo/DemoWorld.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int stepsPerGiB = 10;
constexpr double bytesPerStep = 1024.0 * 1024.0 * 1024.0 / stepsPerGiB;
const QString noFirmware = u"version_idle"_s;
const QString newFirmware = u"version_has_new_optional_software"_s;

const QList<std::pair<QString, FaultKind>> &faults()
{
    static const QList<std::pair<QString, FaultKind>> all{
        {u"None"_s, FaultKind::None},
        {u"Does not answer"_s, FaultKind::NoAnswer},
        {u"Answers after two seconds"_s, FaultKind::SlowAnswer},
        {u"Breaks off half-way"_s, FaultKind::HalfAnswer},
        {u"Never stops sending"_s, FaultKind::EndlessAnswer},
        {u"Never stops sending headers"_s, FaultKind::EndlessHead},
        {u"Drips"_s, FaultKind::DrippingAnswer},
        {u"Sends bytes that are no text"_s, FaultKind::WrongBytes},
        {u"Hangs up"_s, FaultKind::CloseAtOnce},
        {u"Resets the connection"_s, FaultKind::ResetAtOnce},
        {u"Hangs up on the second request"_s, FaultKind::CloseKeptAlive},
        {u"Redirects"_s, FaultKind::Redirect},
        {u"Refuses connections"_s, FaultKind::Refuse},
    };
    return all;
}

} // namespace

ModemPanel::ModemPanel(DemoWorld &world)
    : m_world(world)
{
    auto *dataGroup = new QGroupBox(u"Data"_s);
    auto *form = new QFormLayout(dataGroup);
    m_month =
        addAmount(*form, u"Used this month"_s, 15, &ModemCondition::monthlyReceived, &ModemCondition::monthlySent);
    m_threshold = addLimit(*form, u"Remind above"_s, &ModemCondition::reminderThreshold);
    m_monthLimit = addLimit(*form, u"Monthly limit"_s, &ModemCondition::monthlyLimit);
    m_threeDays = addAmount(*form, u"Used in three days"_s, 5, &ModemCondition::threeDaysReceived,
                            &ModemCondition::threeDaysSent);
    m_threeDayLimit = addLimit(*form, u"Three-day limit"_s, &ModemCondition::threeDayLimit);
    auto *modemGroup = new QGroupBox(u"Modem"_s);
    form = new QFormLayout(modemGroup);
    addSwitches(*form);
    addStyles(*form);
    addFaults(*form);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(dataGroup);
    layout->addWidget(modemGroup);
    refresh();
}

ModemPanel::Amount ModemPanel::addAmount(QFormLayout &form, const QString &name, int maximum,
                                         quint64 ModemCondition::*received, quint64 ModemCondition::*sent)
{
    const Amount amount{.slider = new QSlider(Qt::Horizontal), .text = new QLabel};
    amount.slider->setMaximum(maximum * stepsPerGiB);
    amount.text->setMinimumWidth(fontMetrics().horizontalAdvance(u"00.0 GB"_s));
    amount.text->setMinimumHeight(QDoubleSpinBox().sizeHint().height()); // as high as the rows of the limits
    amount.text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *row = new QHBoxLayout;
    row->addWidget(amount.slider);
    row->addWidget(amount.text);
    form.addRow(name, row);
    connect(amount.slider, &QSlider::valueChanged, this, [this, amount, received, sent](int steps) {
        const auto bytes = static_cast<quint64>(steps * bytesPerStep);
        m_world.modem().change([=](ModemCondition &condition) {
            condition.*received = bytes;
            condition.*sent = 0;
        });
        show(amount, bytes);
    });
    return amount;
}

QDoubleSpinBox *ModemPanel::addLimit(QFormLayout &form, const QString &name, double ModemCondition::*field)
{
    auto *limit = new QDoubleSpinBox;
    limit->setDecimals(1);
    limit->setSingleStep(0.5);
    limit->setSuffix(u" GB"_s);
    form.addRow(name, limit);
    connect(limit, &QDoubleSpinBox::valueChanged, this, [this, field](double value) {
        m_world.modem().change([=](ModemCondition &condition) { condition.*field = value; });
    });
    return limit;
}

void ModemPanel::addSwitches(QFormLayout &form)
{
    m_firmware = new QCheckBox(u"Offers new firmware"_s);
    m_firmware->setToolTip(u"Noticed when the modem is plugged in or the computer wakes, or within ten minutes."_s);
    form.addRow(m_firmware);
    connect(m_firmware, &QCheckBox::toggled, this, [this](bool on) {
        m_world.modem().change(
            [=](ModemCondition &condition) { condition.firmwarePackage = on ? newFirmware : noFirmware; });
    });
    m_password = addFlag(form, u"Needs a connection password"_s, &ModemCondition::needsConnectionPassword);
    m_roaming = addFlag(form, u"Allows roaming"_s, &ModemCondition::roamingAllowed);
    m_pages = addFlag(form, u"Wants its pages opened"_s, &ModemCondition::startsWebUI);
}

QCheckBox *ModemPanel::addFlag(QFormLayout &form, const QString &name, bool ModemCondition::*field)
{
    auto *box = new QCheckBox(name);
    form.addRow(box);
    connect(box, &QCheckBox::toggled, this, [this, field](bool on) {
        m_world.modem().change([=](ModemCondition &condition) { condition.*field = on; });
    });
    return box;
}

void ModemPanel::addStyles(QFormLayout &form)
{
    auto *styles = new QComboBox;
    styles->addItem(u"JSON"_s);
    styles->addItem(u"Script text"_s);
    form.addRow(u"Status page"_s, styles);
    connect(styles, &QComboBox::currentIndexChanged, this, [this](int index) {
        const PageStyle style = index == 0 ? PageStyle::Json : PageStyle::ScriptText;
        m_world.modem().change([=](ModemCondition &condition) { condition.pageStyle = style; });
    });
}

void ModemPanel::addFaults(QFormLayout &form)
{
    auto *box = new QComboBox;
    for (const auto &[name, kind] : faults())
        box->addItem(name);
    form.addRow(u"Fault"_s, box);
    connect(box, &QComboBox::currentIndexChanged, this,
            [this](int index) { m_world.server().setFault({.kind = faults()[index].second, .text = "/elsewhere"}); });
}

void ModemPanel::refresh()
{
    const ModemCondition condition = m_world.modem().condition();
    const auto quietly = [](QWidget *widget, const auto &change) {
        const QSignalBlocker blocker(widget);
        change();
    };
    show(m_month, condition.monthlyReceived + condition.monthlySent);
    show(m_threeDays, condition.threeDaysReceived + condition.threeDaysSent);
    quietly(m_threshold, [&] { m_threshold->setValue(condition.reminderThreshold); });
    quietly(m_monthLimit, [&] { m_monthLimit->setValue(condition.monthlyLimit); });
    quietly(m_threeDayLimit, [&] { m_threeDayLimit->setValue(condition.threeDayLimit); });
    quietly(m_firmware, [&] { m_firmware->setChecked(condition.firmwarePackage == newFirmware); });
    quietly(m_password, [&] { m_password->setChecked(condition.needsConnectionPassword); });
    quietly(m_roaming, [&] { m_roaming->setChecked(condition.roamingAllowed); });
    quietly(m_pages, [&] { m_pages->setChecked(condition.startsWebUI); });
}

void ModemPanel::show(const Amount &amount, quint64 bytes)
{
    const double steps = static_cast<double>(bytes) / bytesPerStep;
    amount.text->setText(u"%1 GB"_s.arg(steps / stepsPerGiB, 0, 'f', 1));
    const QSignalBlocker blocker(amount.slider);
    if (!amount.slider->isSliderDown())
        amount.slider->setValue(qRound(steps));
}

} // namespace tarvo
