#include "ui/news/NewsSequence.h"

#include "RouterObserver/ConfigManager.h"
#include "attachment/Latch.h"
#include "modemapi/StatusSnapshot.h"
#include "platform/StepQueue.h"
#include "platform/SystemLog.h"
#include "status/NewsEffect.h"
#include "ui/balloon/BalloonPresenter.h"
#include "ui/look/Images.h"
#include "ui/pages/WebPages.h"
#include "ui/windows/UpdateAlert.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace tarvo {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto perType = 2s; // from one type to the next, besides what is told of it

/// Lets a step of the sequence replace @p image, unless it has none.
void replace(QString &image, const QString &ofStep)
{
    if (!ofStep.isEmpty())
        image = ofStep;
}

} // namespace

NewsSequence::NewsSequence(const Dependencies &dependencies, Callbacks callbacks)
    : m_with(dependencies)
    , m_callbacks(std::move(callbacks))
{
}

NewsSequence::~NewsSequence() = default;

void NewsSequence::mouseEnteredHandle(const Work *work)
{
    if (m_with.settings.flag(u"DonotShowStatusWhenMouseMoveIn"_s) || startDisplayFlowing()) {
        m_with.systemLog.write(u"already dislaystatus or no need display"_s);
        return;
    }
    statusDisplayFlowFinishFlag_ = false;
    if (work) {
        start(*work);
        return;
    }
    const std::scoped_lock lock(m_mutex);
    begin(m_with.clock.now());
}

void NewsSequence::startDisPlayUIStatusThread(const Work &work)
{
    statusDisplayFlowFinishFlag_ = statusDisplayFlowFinishFlag(); // one without a thread ends by itself
    work.whileAttached([this] { m_overrunTold = false; });
    start(work);
}

void NewsSequence::showNormalState(const Work &work)
{
    work.whileAttached([&] { ask(work, u"online"_s); });
}

bool NewsSequence::startDisplayFlowing() const
{
    const std::scoped_lock lock(m_mutex);
    return isFlowing(m_with.clock.now());
}

bool NewsSequence::isFlowing(Clock::TimePoint now) const
{
    return startDisplayFlowing_ && (m_hasThread || now < m_emptySequenceEnds);
}

void NewsSequence::begin(Clock::TimePoint now)
{
    startDisplayFlowing_ = true;
    m_emptySequenceEnds = now + perType * displayTypes.size();
}

NewsSequence::Rest NewsSequence::restAt(Clock::TimePoint now) const
{
    const auto left = static_cast<std::size_t>((m_emptySequenceEnds - now) / perType);
    return {std::span(displayTypes).last(left), m_emptySequenceEnds - perType * left};
}

void NewsSequence::start(const Work &work)
{
    Rest rest{};
    work.whileAttached([&] { rest = restToTell(work); });
    if (!rest.types.empty() && !work.start([this, rest](const Work &own) { displayUIStatus(own, rest); }))
        endSequence();
}

NewsSequence::Rest NewsSequence::restToTell(const Work &work)
{
    const std::scoped_lock lock(m_mutex);
    if (m_hasThread)
        return {};
    const Clock::TimePoint now = m_with.clock.now();
    const bool begins = !isFlowing(now);
    if (begins)
        begin(now);
    const Rest rest = restAt(now);
    const StatusSnapshot snapshot = m_with.snapshot.get(); // what is found without news is evaluated, and no later one
    m_hasThread = hasNews(snapshot, rest.types);
    if (m_hasThread)
        return rest;
    if (begins) {
        QString image;
        for (const int type : displayTypes)
            replace(image, evaluate(snapshot, type).image);
        showEnd(work, image);
    }
    return {};
}

bool NewsSequence::hasNews(const StatusSnapshot &snapshot, std::span<const int> types) const
{
    return !stopProcModemStatus_ && std::ranges::any_of(types, [&](int type) {
        return !evaluateDisplayType(snapshot, type, m_previous.stood(type)).balloonText.isEmpty();
    });
}

void NewsSequence::displayUIStatus(const Work &work, const Rest &rest)
{
    m_with.clock.waitUntil(rest.begins, work.stopToken());
    QString image;
    for (const int type : rest.types)
        replace(image, displayNews(work, type));
    work.whileAttached([&] { showEnd(work, image); });
    endSequence();
}

void NewsSequence::endSequence()
{
    statusDisplayFlowFinishFlag_ = true;
    const std::scoped_lock lock(m_mutex);
    startDisplayFlowing_ = false;
    m_hasThread = false;
}

QString NewsSequence::displayNews(const Work &work, int type)
{
    const std::stop_token gone = deviceGone();
    NewsEffect effect;
    work.whileAttached([&] { effect = evaluate(m_with.snapshot.get(), type); });
    if (!effect.balloonText.isEmpty()) {
        statusDisplayFlowFinishFlag_ = false;
        if (showBalloon(work, gone, effect, type)) {
            pause(gone, 3s);
            closeBalloon(gone);
        }
    }
    pause(work.stopToken(), perType);
    return effect.image;
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

bool NewsSequence::showBalloon(const Work &work, const std::stop_token &deviceGone, const NewsEffect &effect, int type)
{
    const StandingNews news{effect.balloonText, type == DisplayType::NewVersion ? Page::Firmware : Page::DataLimit};
    work.whileAttached([&] {
        m_image = effect.image;
        m_toldClick.reset(); // what is told with the news is that of one step
    });
    const auto asked = std::make_shared<Latch>();
    const auto appeared = std::make_shared<Latch>();
    work.post(m_with.mainThread, [this, effect, news, type, asked, appeared] {
        m_callbacks.showImage(effect.image);
        if (effect.announcesUpdate)
            m_with.updateAlert.showAlertMsgForUpdate();
        if (m_with.balloon.isShown())
            m_with.balloon.toggleAttachedWindowAtPoint(news.text);
        BalloonExtras extras = extrasOf(news, effect.image, type);
        extras.appeared = [appeared] { appeared->open(); };
        m_with.balloon.toggleAttachedWindowAtPoint(news.text, extras);
        if (m_callbacks.told)
            m_callbacks.told(news);
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

void NewsSequence::ask(const Work &work, const QString &image)
{
    if (std::exchange(m_image, image) != image)
        work.post(m_with.mainThread, [this, image] { m_callbacks.showImage(image); });
}

void NewsSequence::showEnd(const Work &work, const QString &image)
{
    if (!image.isEmpty())
        ask(work, image);
    const bool click = m_with.pages.openUpdateUrlWhileHasNewVersion();
    if (std::exchange(m_toldClick, click) != click && m_callbacks.clickChanged)
        work.post(m_with.mainThread, m_callbacks.clickChanged);
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

QString NewsSequence::getDisplayStatusByType(const Work &work, int type)
{
    QString text;
    work.whileAttached([&] { text = evaluate(m_with.snapshot.get(), type).balloonText; });
    return text;
}

NewsEffect NewsSequence::evaluate(StatusSnapshot snapshot, int type)
{
    if (stopProcModemStatus_)
        return {};
    if (m_overrunTold)
        snapshot.m_surplusData = std::abs(snapshot.m_surplusData);
    NewsEffect effect = evaluateDisplayType(snapshot, type, m_previous.stood(type));
    m_previous.setStood(type, effect.isNews);
    if (!effect.balloonText.isEmpty() && m_callbacks.mayTell && !m_callbacks.mayTell(type)) {
        effect.balloonText.clear();
        effect.announcesUpdate = false;
    }
    m_with.pages.setClickTargets(effect.clickOpensUpdatePage, effect.clickOpensLimitPage);
    m_overrunTold = m_overrunTold || effect.tellsOverrun;
    return effect;
}

void NewsSequence::forgetShown()
{
    m_image.clear();
    m_toldClick.reset();
}

void NewsSequence::resetForReadyDevice(const QList<int> &seenTypes)
{
    stopProcModemStatus_ = false;
    m_previous = PreviousNews::ofTypes(seenTypes);
    forgetShown();
}

void NewsSequence::resetForStop()
{
    stopProcModemStatus_ = true;
    m_previous = {};
    forgetShown();
    const std::scoped_lock lock(m_mutex);
    m_deviceGone.request_stop();
    m_deviceGone = {};
    m_emptySequenceEnds = {};
}

} // namespace tarvo
