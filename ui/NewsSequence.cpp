#include "ui/NewsSequence.h"

#include "RouterObserver/ConfigManager.h"
#include "attachment/Latch.h"
#include "modemapi/StatusSnapshot.h"
#include "platform/StepQueue.h"
#include "platform/SystemLog.h"
#include "ui/BalloonPresenter.h"
#include "ui/DisplayStatus.h"
#include "ui/Images.h"
#include "ui/StatusIcon.h"
#include "ui/UpdateAlert.h"
#include "ui/WebPages.h"

#include <QCoreApplication>

#include <algorithm>
#include <memory>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

NewsSequence::NewsSequence(Surroundings surroundings)
    : m_with(std::move(surroundings))
{
}

NewsSequence::~NewsSequence() = default;

void NewsSequence::mouseEnteredHandle(const Work *work)
{
    if (configurationFlag(u"DonotShowStatusWhenMouseMoveIn"_s) || !begin()) {
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
    if (begin())
        start(work);
}

void NewsSequence::showNormalState(const Work &work)
{
    const QString normal = u"online"_s;
    bool changed = false;
    work.whileAttached([&] {
        changed = std::exchange(m_shownImage, normal) != normal;
        m_image = normal;
    });
    if (changed)
        work.post(m_with.mainThread, [this, normal] { m_with.icon.setStatusImage(normal); });
}

bool NewsSequence::startDisplayFlowing() const
{
    const std::scoped_lock lock(m_mutex);
    return isFlowing();
}

bool NewsSequence::isFlowing() const
{
    return startDisplayFlowing_ && (m_hasThread || m_with.clock.now() < m_emptySequenceEnds);
}

bool NewsSequence::begin()
{
    const std::scoped_lock lock(m_mutex);
    if (isFlowing())
        return false;
    startDisplayFlowing_ = true;
    m_hasThread = true;
    return true;
}

void NewsSequence::start(const Work &work)
{
    if (!hasNews(work))
        runWithoutNews(work);
    else if (!work.start([this](const Work &own) { displayUIStatus(own); }))
        endSequence();
}

bool NewsSequence::hasNews(const Work &work) const
{
    bool found = false;
    work.whileAttached([&] {
        const StatusSnapshot snapshot = m_with.snapshot.get();
        found = !stopProcModemStatus_ && std::ranges::any_of(displayTypes, [&](int type) {
            return !evaluateDisplayType(snapshot, type, m_previous.*previousOf(type)).balloonText.isEmpty();
        });
    });
    return found;
}

void NewsSequence::runWithoutNews(const Work &work)
{
    constexpr auto duration = 2s * displayTypes.size();
    for (const int type : displayTypes)
        evaluate(work, type);
    showEnd(work);
    statusDisplayFlowFinishFlag_ = true;
    const std::scoped_lock lock(m_mutex);
    m_hasThread = false;
    m_emptySequenceEnds = m_with.clock.now() + duration;
}

void NewsSequence::displayUIStatus(const Work &work)
{
    for (const int type : displayTypes)
        displayNews(work, type);
    showEnd(work);
    endSequence();
}

void NewsSequence::endSequence()
{
    statusDisplayFlowFinishFlag_ = true;
    const std::scoped_lock lock(m_mutex);
    startDisplayFlowing_ = false;
    m_hasThread = false;
}

void NewsSequence::displayNews(const Work &work, int type)
{
    const std::stop_token gone = deviceGone();
    const DisplayStatus status = evaluate(work, type);
    if (!status.balloonText.isEmpty()) {
        statusDisplayFlowFinishFlag_ = false;
        if (showBalloon(work, gone, status, type)) {
            pause(gone, 3s);
            closeBalloon(gone);
        }
    }
    pause(work.stopToken(), 2s);
}

BalloonExtras NewsSequence::extrasOf(const StandingNews &news, const QString &image, int type) const
{
    constexpr int imageSize = 64;
    return {.kind = u"news %1"_s.arg(type),
            .title = news.page == Page::Firmware ? qtTrId("updateTitleTip") : qtTrId("NewsTitleDataLimit"),
            .image = imageNamed(image).pixmap(imageSize).toImage(),
            .openLabel = m_with.pages.canOpen(news.page) ? qtTrId("NewsOpen") : QString(),
            .opened = [this, page = news.page] { m_with.pages.open(page); }};
}

bool NewsSequence::showBalloon(const Work &work, const std::stop_token &deviceGone, const DisplayStatus &status,
                               int type)
{
    const StandingNews news{status.balloonText, type == DisplayType::NewVersion ? Page::Firmware : Page::DataLimit};
    work.whileAttached([&] {
        m_shownImage = status.image;
        m_toldClick.reset(); // what is told with the news is that of one step
    });
    const auto asked = std::make_shared<Latch>();
    const auto appeared = std::make_shared<Latch>();
    work.post(m_with.mainThread, [this, status, news, type, asked, appeared] {
        m_with.icon.setStatusImage(status.image);
        if (status.announcesUpdate)
            m_with.updateAlert.showAlertMsgForUpdate();
        if (m_with.balloon.isShown())
            m_with.balloon.toggleAttachedWindowAtPoint(news.text);
        BalloonExtras extras = extrasOf(news, status.image, type);
        extras.appeared = [appeared] { appeared->open(); };
        m_with.balloon.toggleAttachedWindowAtPoint(news.text, extras);
        if (m_with.told)
            m_with.told(news);
        asked->open();
    });
    return asked->wait(work.stopToken()) && appeared->wait(deviceGone);
}

void NewsSequence::closeBalloon(const std::stop_token &deviceGone)
{
    const auto closed = std::make_shared<Latch>();
    // A second report of the device must not leave the balloon: closing it is tied to no work.
    m_with.mainThread.post([this, closed, deviceGone] {
        if (!deviceGone.stop_requested())
            m_with.balloon.dismiss([closed] { closed->open(); });
    });
    closed->wait(deviceGone);
}

void NewsSequence::showEnd(const Work &work)
{
    QString image;
    bool clickChanged = false;
    work.whileAttached([&] {
        if (m_shownImage != m_image)
            image = m_shownImage = m_image;
        const bool click = m_with.pages.openUpdateUrlWhileHasNewVersion();
        clickChanged = std::exchange(m_toldClick, click) != click;
    });
    if (!image.isEmpty())
        work.post(m_with.mainThread, [this, image] { m_with.icon.setStatusImage(image); });
    if (clickChanged && m_with.clickChanged)
        work.post(m_with.mainThread, m_with.clickChanged);
}

std::stop_token NewsSequence::deviceGone() const
{
    const std::scoped_lock lock(m_mutex);
    return m_deviceGone.get_token();
}

void NewsSequence::pause(const std::stop_token &stop, std::chrono::seconds duration)
{
    m_with.clock.waitUntil(m_with.clock.now() + duration, stop);
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
    return evaluate(work, type).balloonText;
}

DisplayStatus NewsSequence::evaluate(const Work &work, int type)
{
    DisplayStatus status;
    bool PreviousNews::*const previous = previousOf(type);
    m_with.snapshot.update(work, [&](StatusSnapshot &snapshot) {
        if (stopProcModemStatus_)
            return;
        status = evaluateDisplayType(snapshot, type, previous && m_previous.*previous);
        if (previous)
            m_previous.*previous = status.isNews;
        if (!status.image.isEmpty())
            m_image = status.image;
        m_with.pages.setClickTargets(status.clickOpensUpdatePage, status.clickOpensLimitPage);
        snapshot.m_surplusData = status.surplus.value_or(snapshot.m_surplusData);
    });
    return status;
}

void NewsSequence::resetForReadyDevice()
{
    stopProcModemStatus_ = false;
    m_image.clear();
    m_shownImage.clear();
    m_toldClick.reset();
}

void NewsSequence::resetForStop()
{
    stopProcModemStatus_ = true;
    m_previous = {};
    m_image.clear();
    m_shownImage.clear();
    m_toldClick.reset();
    const std::scoped_lock lock(m_mutex);
    m_deviceGone.request_stop();
    m_deviceGone = {};
    m_emptySequenceEnds = {};
}

} // namespace tarvo
