#pragma once

#include "status/UsageHistory.h"

#include <QWidget>

namespace tarvo {

/// The data used since the modem was plugged in, over time.
class UsagePlot : public QWidget {
public:
    UsagePlot();

    void setSamples(const QList<UsageHistory::Sample> &samples);

    QSize sizeHint() const override { return {320, 96}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QList<UsageHistory::Sample> m_samples;
};

} // namespace tarvo
