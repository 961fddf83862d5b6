#pragma once

#include <QIcon>
#include <QListWidget>
#include <QString>

namespace tarvo {

/// One item of a list: a picture, a title, and lines below that are wrapped.
struct TitledItem {
    QIcon icon;
    QString iconText; ///< what the picture says, for those who do not see it
    QString title;
    QString body{}; ///< may have several lines, or be empty
};

/// A list of such items, of which one can be chosen.
class TitledList final : public QListWidget {
public:
    explicit TitledList(QWidget *parent = nullptr);

    /// Replaces the items, and keeps the row that is chosen.
    void setItems(const QList<TitledItem> &items);

private:
    void resizeEvent(QResizeEvent *event) override;
};

/// A text that keeps its own direction within a line of another one.
QString isolated(const QString &text);

} // namespace tarvo
