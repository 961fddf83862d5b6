#pragma once

#include <QPushButton>
#include <QSize>
#include <QString>

class QEnterEvent;

namespace tarvo {

class SystemLog;

/// The icon's button. It shows an image by name, without a border, and tells when the pointer comes over it.
class CustomView : public QPushButton {
    Q_OBJECT

public:
    /// @param systemLog  outlives the button
    explicit CustomView(SystemLog &systemLog);

    /// Shows the image named @p name; nothing when it shows that already.
    void setImage(const QString &name);
    /// @return the name of the image; empty before the first
    const QString &image() const { return image_; }

    /// Sets the tool tip, which is the button's description for screen readers too; nothing when it is that already.
    void setTip(const QString &tip);

    /// @return the size of the image
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The notification "MouseEntered".
    void mouseEntered();
    /// The image or the tip is another one now.
    void appearanceChanged();

protected:
    void enterEvent(QEnterEvent *event) override;

private:
    SystemLog &systemLog_;
    QString image_;
};

} // namespace tarvo
