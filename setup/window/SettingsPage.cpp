#include "setup/window/SettingsPage.h"

#include "setup/settings/SettingKeys.h"
#include "setup/window/Buttons.h"
#include "setup/window/SettingField.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

/// @return the id of the heading that stands above the setting @p name; null for none
const char *headingAbove(const QString &name)
{
    static const QMap<QString, const char *> headings{
        {u"device_info/vendor_ids"_s, "GroupDevices"},     {u"IsDisplayNetStatusInToolBar"_s, "GroupIcon"},
        {u"AddRefererIntoHttpHeader"_s, "GroupModem"},     {u"OperatorHomePage"_s, "GroupPages"},
        {u"ProvisionAccessPoints"_s, "GroupAccessPoints"},
    };
    return headings.value(name, nullptr);
}

QLabel *heading(const char *id)
{
    auto *const label = new QLabel(qtTrId(id));
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    label->setFont(font);
    label->setContentsMargins(0, 12, 0, 6);
    return label;
}

/// One value of the form, to be written.
struct Entry {
    SettingKey key;
    QVariant value;
};

std::optional<PropertyListText> applied(const PropertyListText &settings, const Entry &entry)
{
    if (!entry.value.isValid())
        return settings.withoutValue(entry.key.path);
    if (entry.key.kind != SettingKind::Identifiers)
        return settings.withValue(entry.key.path, entry.value);
    return settings.withTexts(entry.key.path, entry.value.toStringList());
}

SettingChange changeTo(const QList<Entry> &entries)
{
    return [entries](const PropertyListText &settings) {
        std::optional<PropertyListText> changed = settings;
        for (const Entry &entry : entries)
            changed = changed ? applied(*changed, entry) : std::nullopt;
        return changed;
    };
}

} // namespace

SettingsPage::SettingsPage(Handlers handlers)
    : m_handlers(std::move(handlers))
{
    auto *const form = new QWidget;
    auto *const column = new QVBoxLayout(form);
    column->setSpacing(0);
    addStart(column);
    addFields(column);
    column->addStretch();
    auto *const scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(form);
    scroll->viewport()->setAutoFillBackground(false);
    form->setAutoFillBackground(false); // the tab's own background shows
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(scroll, 1);
    addButtons(layout);
    edited();
}

void SettingsPage::addStart(QVBoxLayout *form)
{
    const std::optional<bool> isOn = Autostart().isOn();
    if (!isOn)
        return; // the companion is not installed for this user's desktop
    auto *const start = new QCheckBox(qtTrId("StartAtLogin"));
    start->setChecked(*isOn);
    form->addWidget(heading("GroupStart"));
    form->addWidget(start);
    form->addSpacing(14);
    connect(start, &QCheckBox::toggled, this, [this, start](bool on) {
        const QString problem = Autostart().set(on);
        if (problem.isEmpty())
            return;
        m_handlers.showProblem(problem);
        const QSignalBlocker quiet(start);
        start->setChecked(!on);
    });
}

void SettingsPage::addFields(QVBoxLayout *form)
{
    for (const SettingKey &key : settingKeys()) {
        if (const char *const id = headingAbove(key.name()))
            form->addWidget(heading(id));
        auto *const field = new SettingField(key, [this] { edited(); });
        form->addWidget(field);
        m_fields.push_back(field);
    }
}

void SettingsPage::addButtons(QVBoxLayout *layout)
{
    auto *const reset = roomyButton(qtTrId("ShippedSettings"));
    m_discard = roomyButton(qtTrId("DiscardChanges"));
    m_save = roomyButton(qtTrId("Save"));
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(reset);
    buttons->addStretch();
    buttons->addWidget(m_discard);
    buttons->addWidget(m_save);
    layout->addLayout(buttons);
    connect(reset, &QPushButton::clicked, this, [this] { m_handlers.reset(); });
    connect(m_discard, &QPushButton::clicked, this, [this] { discardChanges(); });
    connect(m_save, &QPushButton::clicked, this, [this] { save(); });
}

void SettingsPage::setPresent(const QVariantMap &settings)
{
    for (SettingField *field : m_fields)
        field->setPresent(settingAt(settings, field->key().path));
    edited();
}

void SettingsPage::discardChanges()
{
    for (SettingField *field : m_fields)
        field->showPresent();
    edited();
}

bool SettingsPage::isEdited() const
{
    return std::ranges::any_of(m_fields, [](const SettingField *field) { return field->isEdited(); });
}

void SettingsPage::save()
{
    QList<Entry> entries;
    for (const SettingField *field : m_fields) {
        if (field->isChanged())
            entries.append({field->key(), field->value()});
    }
    m_handlers.save(changeTo(entries));
}

void SettingsPage::edited()
{
    if (!m_save)
        return;
    const bool valid = std::ranges::all_of(m_fields, [](const SettingField *field) { return field->isValid(); });
    const bool changed = std::ranges::any_of(m_fields, [](const SettingField *field) { return field->isChanged(); });
    m_save->setEnabled(valid && changed);
    m_discard->setEnabled(isEdited());
}

} // namespace tarvo
