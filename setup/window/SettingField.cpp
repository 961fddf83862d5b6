#include "setup/window/SettingField.h"

#include "RouterObserver/ConfigManager.h"
#include "setup/settings/SettingFindings.h"
#include "setup/window/TitledItems.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMetaType>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace tarvo {

using namespace Qt::StringLiterals;

namespace {

QLabel *wrappedLabel()
{
    auto *const label = new QLabel;
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QColor quietColour(const QPalette &palette)
{
    QColor colour = palette.color(QPalette::WindowText);
    colour.setAlphaF(0.7F);
    return colour;
}

/// @return a red that can be read on the palette's background
QColor warningColour(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x2a, 0x1e);
}

void setTextColour(QLabel *label, const QColor &colour)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
}

QVariantList identifiersFrom(const QString &text)
{
    static const QRegularExpression separators(u"[,;\\s]+"_s);
    const QStringList parts = text.split(separators, Qt::SkipEmptyParts);
    return {parts.begin(), parts.end()};
}

} // namespace

SettingField::SettingField(const SettingKey &key, const std::function<void()> &edited)
    : m_key(key)
    , m_explanation(wrappedLabel())
    , m_fault(wrappedLabel())
{
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 14);
    layout->setSpacing(3);
    if (key.kind == SettingKind::Flag) {
        m_flag = new QCheckBox(key.label());
        m_flag->setChecked(key.flagWhenAbsent); // as nothing is present yet
        layout->addWidget(m_flag);
        connect(m_flag, &QCheckBox::toggled, this, edited);
    } else {
        m_text = new QLineEdit;
        auto *const label = new QLabel(key.label());
        label->setBuddy(m_text);
        layout->addWidget(label);
        layout->addWidget(m_text);
        connect(m_text, &QLineEdit::textEdited, this, [this, edited] {
            showFault();
            edited();
        });
    }
    m_explanation->setText(key.explanation() + u' ' + shippedText());
    QWidget *const editor = m_flag ? static_cast<QWidget *>(m_flag) : m_text;
    editor->setAccessibleDescription(m_explanation->text());
    setFocusProxy(editor);
    applyColours();
    m_fault->hide();
    layout->addWidget(m_fault);
    layout->addWidget(m_explanation);
}

void SettingField::applyColours()
{
    setTextColour(m_explanation, quietColour(palette()));
    setTextColour(m_fault, warningColour(palette()));
}

void SettingField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}

QString SettingField::shippedText() const
{
    const QVariant shipped = settingAt(shippedSettings(), m_key.path);
    if (m_key.kind == SettingKind::Flag)
        return readsAs(shipped) ? qtTrId("ShippedOn") : qtTrId("ShippedOff");
    const QString text = asText(shipped);
    return text.isEmpty() ? qtTrId("ShippedNone") : qtTrId("ShippedText").arg(isolated(text.trimmed()));
}

bool SettingField::readsAs(const QVariant &flag) const
{
    return flag.isValid() ? boolValue(flag) : m_key.flagWhenAbsent;
}

QString SettingField::asText(const QVariant &value) const
{
    if (m_key.kind != SettingKind::Identifiers)
        return value.typeId() == QMetaType::QString ? value.toString() : QString();
    QStringList texts;
    for (const QVariant &element : value.toList())
        texts.append(element.toString());
    return texts.join(u", "_s);
}

void SettingField::setPresent(const QVariant &value)
{
    const bool edited = isEdited();
    m_present = value;
    if (!edited)
        showPresent();
    showFault();
}

void SettingField::showPresent()
{
    if (m_flag)
        m_flag->setChecked(readsAs(m_present));
    else
        m_text->setText(asText(m_present));
    showFault();
}

QVariant SettingField::value() const
{
    if (m_flag)
        return m_flag->isChecked();
    if (m_key.kind == SettingKind::Identifiers)
        return identifiersFrom(m_text->text());
    return m_text->text().isEmpty() ? QVariant() : QVariant(m_text->text());
}

bool SettingField::isEdited() const
{
    if (m_flag)
        return m_flag->isChecked() != readsAs(m_present);
    if (m_key.kind == SettingKind::Identifiers)
        return value() != identifiersFrom(asText(m_present));
    return m_text->text() != asText(m_present);
}

bool SettingField::isChanged() const
{
    const bool isMended = m_present.isValid() && checkValue(m_key, m_present) && isValid();
    return isEdited() || isMended;
}

bool SettingField::isValid() const
{
    const QVariant wanted = value();
    return !wanted.isValid() || !checkValue(m_key, wanted);
}

void SettingField::showFault()
{
    const QVariant wanted = value();
    const auto finding = wanted.isValid() ? checkValue(m_key, wanted) : std::nullopt;
    m_fault->setText(finding ? finding->sentence().shown() : QString());
    m_fault->setVisible(finding.has_value());
    if (m_text)
        m_text->setAccessibleName(finding ? m_key.label() + u": "_s + m_fault->text() : m_key.label());
}

} // namespace tarvo
