#include "ui/NewsSequence.h"

#include "RouterObserver/ConfigManager.h"
#include "modemapi/StatusSnapshot.h"
#include "platform/Clock.h"
#include "platform/StepQueue.h"
#include "platform/SystemLog.h"
#include "ui/BalloonPresenter.h"
#include "ui/DisplayStatus.h"
#include "ui/StatusIcon.h"
#include "ui/UpdateAlert.h"
#include "ui/WebPages.h"

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

NewsSequence::NewsSequence(const Surroundings &surroundings)
    : m_with(surroundings)
{
}

void NewsSequence::mouseEnteredHandle(const Work *work)
{
    if (configurationFlag(u"DonotShowStatusWhenMouseMoveIn"_s) || startDisplayFlowing_.exchange(true)) {
        m_with.systemLog.write(u"already dislaystatus or no need display"_s);
        return;
    }
    statusDisplayFlowFinishFlag_ = false;
    if (work)
        start(*work);
    else
        endSequence();
}

void NewsSequence::startDisPlayUIStatusThread(const Work &work)
{
    if (!startDisplayFlowing_.exchange(true))
        start(work);
}

void NewsSequence::start(const Work &work)
{
    if (!work.start([this](const Work &own) { displayUIStatus(own); }))
        startDisplayFlowing_ = false;
}

void NewsSequence::displayUIStatus(const Work &work)
{
    for (const int type : {DisplayType::NewVersion, DisplayType::ThreeDayLimitExceeded,
                           DisplayType::MonthlyLimitExceeded, DisplayType::MonthlyLimitReached})
        displayNews(work, type);
    endSequence();
}

void NewsSequence::endSequence()
{
    statusDisplayFlowFinishFlag_ = true;
    startDisplayFlowing_ = false;
}

void NewsSequence::displayNews(const Work &work, int type)
{
    const QString text = getDisplayStatusByType(work, type);
    if (!text.isEmpty()) {
        statusDisplayFlowFinishFlag_ = false;
        work.post(m_with.mainThread, [this, text] {
            if (m_with.balloon.isShown())
                m_with.balloon.toggleAttachedWindowAtPoint(text);
            m_with.balloon.toggleAttachedWindowAtPoint(text);
        });
        pause(work, 3s);
        closeBalloon(text);
    }
    pause(work, 2s);
}

void NewsSequence::closeBalloon(const QString &text)
{
    // A device that replaced this one meanwhile must not inherit the balloon: closing it is not tied to ours.
    m_with.mainThread.post([this, text] {
        if (m_with.balloon.isShown() && !stopProcModemStatus_)
            m_with.balloon.toggleAttachedWindowAtPoint(text);
    });
}

void NewsSequence::pause(const Work &work, std::chrono::seconds duration)
{
    m_with.clock.waitUntil(m_with.clock.now() + duration, work.stopToken());
}

bool NewsSequence::PreviousNews::*NewsSequence::previousOf(int type)
{
    switch (type) {
    case DisplayType::NewVersion:
        return &PreviousNews::previousHaveNewVersion_;
    case DisplayType::ThreeDayLimitExceeded:
        return &PreviousNews::previousHaveDateLimitExceededForThreedays_;
    case DisplayType::MonthlyLimitExceeded:
        return &PreviousNews::previousHaveDateLimitExceeded_;
    case DisplayType::MonthlyLimitReached:
        return &PreviousNews::previousHaveDateLimitReached_;
    default:
        return nullptr;
    }
}

QString NewsSequence::getDisplayStatusByType(const Work &work, int type)
{
    DisplayStatus status;
    bool PreviousNews::*const previous = previousOf(type);
    m_with.snapshot.update(work, [&](StatusSnapshot &snapshot) {
        if (stopProcModemStatus_)
            return;
        status = evaluateDisplayType(snapshot, type, previous && m_previous.*previous);
        if (previous)
            m_previous.*previous = status.isNews;
        m_with.pages.setClickTargets(status.clickOpensUpdatePage, status.clickOpensLimitPage);
        snapshot.m_surplusData = status.surplus.value_or(snapshot.m_surplusData);
    });
    work.post(m_with.mainThread, [this, status] { show(status); });
    return status.balloonText;
}

void NewsSequence::show(const DisplayStatus &status)
{
    if (!status.image.isEmpty())
        m_with.icon.setStatusImage(status.image);
    if (status.tip)
        m_with.icon.setStatusToolTip(*status.tip);
    if (status.announcesUpdate)
        m_with.updateAlert.showAlertMsgForUpdate();
}

void NewsSequence::resetForReadyDevice()
{
    stopProcModemStatus_ = false;
}

void NewsSequence::resetForStop()
{
    stopProcModemStatus_ = true;
    m_previous = {};
}

} // namespace tarvo
