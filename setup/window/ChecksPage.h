#pragma once

#include "setup/checks/Chain.h"

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace tarvo {

class TitledList;

/// The chain of checks.
class ChecksPage final : public QWidget {
public:
    /// @param checkAgain  called when the user wants the chain gone through
    explicit ChecksPage(std::function<void()> checkAgain);

    /// The chain is being gone through.
    void setChecking();
    void setChecks(const QList<Check> &checks);

private:
    QLabel *m_summary;
    TitledList *m_list;
    QPushButton *m_copy;
    QPushButton *m_again;
    QList<Check> m_checks;
};

} // namespace tarvo
