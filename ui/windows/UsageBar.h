#pragma once

#include <QWidget>

namespace tarvo {

/// An amount of data as a bar, with marks at the reminder and at the limit. Amounts are in gigabytes.
class UsageBar : public QWidget {
public:
    struct Amounts {
        double used = 0;
        double reminder = 0; ///< 0 for none
        double limit = 0; ///< 0 for none

        bool operator==(const Amounts &) const = default;
    };

    /// @param name  what the amount is, for screen readers
    explicit UsageBar(const QString &name);

    /// Shows @p amounts; their text is the bar's description for screen readers.
    void setAmounts(const Amounts &amounts, const QString &text);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Amounts m_amounts;
};

} // namespace tarvo
