#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QSlider;

namespace tarvo {

class DemoWorld;
struct ModemCondition;

/// What the modem tells of itself, and what it does wrong.
class ModemPanel : public QWidget {
public:
    /// @param world  outlives the panel
    explicit ModemPanel(DemoWorld &world);

    /// Shows the modem's condition, which changes by itself too.
    void refresh();

private:
    /// An amount of data on a slider, with its text beside it.
    struct Amount {
        QSlider *slider;
        QLabel *text;
    };

    Amount addAmount(QFormLayout &form, const QString &name, int maximum, quint64 ModemCondition::*received,
                     quint64 ModemCondition::*sent);
    QDoubleSpinBox *addLimit(QFormLayout &form, const QString &name, double ModemCondition::*field);
    void addSwitches(QFormLayout &form);
    QCheckBox *addFlag(QFormLayout &form, const QString &name, bool ModemCondition::*field);
    void addStyles(QFormLayout &form);
    void addFaults(QFormLayout &form);
    static void show(const Amount &amount, quint64 bytes);

    DemoWorld &m_world;
    Amount m_month;
    QDoubleSpinBox *m_monthLimit;
    QDoubleSpinBox *m_threshold;
    Amount m_threeDays;
    QDoubleSpinBox *m_threeDayLimit;
    QCheckBox *m_firmware = nullptr;
    QCheckBox *m_password = nullptr;
    QCheckBox *m_roaming = nullptr;
    QCheckBox *m_pages = nullptr;
};

} // namespace tarvo
