#pragma once

#include "attachment/Attachment.h"
#include "platform/Clock.h"
#include "status/CompanionStatus.h"
#include "status/PreviousNews.h"

#include <QList>
#include <QString>

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <optional>
#include <span>
#include <stop_token>

namespace tarvo {

class BalloonPresenter;
class ConfigManager;
class SharedSnapshot;
class StepQueue;
class SystemLog;
class UpdateAlert;
class WebPages;
struct BalloonExtras;
struct NewsEffect;

/// Tells the user the news, one after the other, by icon and balloon, and knows what was shown before.
///
/// At most one sequence runs at a time. Each kind of news has its time in it. A sequence that has nothing to tell does what
/// it has to do when it begins, and takes its time without a thread; news that come up meanwhile are told by a display
/// thread when their time comes in that sequence, or in the next one when it has passed.
///
/// Only news that are new change the icon one by one. Those that stand are seen by the image that the sequence ends with.
class NewsSequence {
public:
    /// What the sequence shows the news with. All of it outlives the sequence, and is used on the main thread only, but
    /// for the snapshot, the pages' click targets, the clock and the log.
    struct Dependencies {
        const SharedSnapshot &snapshot;
        WebPages &pages;
        BalloonPresenter &balloon;
        UpdateAlert &updateAlert;
        StepQueue &mainThread;
        Clock &clock;
        SystemLog &systemLog;
        const ConfigManager &settings;
    };
    /// Whom the sequence tells and asks: on the main thread, but for `mayTell`.
    struct Callbacks {
        /// Told the name of each image that the icon is to show from now on.
        std::function<void(const QString &image)> showImage;
        /// Told of each piece of news that a balloon tells.
        std::function<void(const StandingNews &news)> told{};
        /// Told when a sequence ended and the icon's click opens another page than was last told.
        std::function<void()> clickChanged{};
        /// Asked before news of a display type are told. @return whether they may be; empty means that they always may
        std::function<bool(int type)> mayTell{};
    };

    /// Nothing has been shown, and there is no device yet.
    NewsSequence(const Dependencies &dependencies, Callbacks callbacks);
    /// No sequence may run any more, nor be waited for.
    ~NewsSequence();
    NewsSequence(const NewsSequence &) = delete;
    NewsSequence &operator=(const NewsSequence &) = delete;

    /// What is left of a sequence.
    struct Rest {
        std::span<const int> types; ///< the kinds of news whose time is still to come
        Clock::TimePoint begins; ///< the time of the first of them
    };

    /// The pointer came over the icon: starts a sequence unless one runs (main thread).
    /// @param work  for the modem that is there; null when there is none, and so nothing to tell
    void mouseEnteredHandle(const Work *work);
    /// A status page was evaluated: starts a sequence unless one runs, or has the one that runs tell the news (any thread).
    void startDisPlayUIStatusThread(const Work &work);
    /// No notice is pending: the icon is to show "online" (any thread).
    void showNormalState(const Work &work);
    /// The sequence itself, as far as it is still to come (display thread).
    void displayUIStatus(const Work &work, const Rest &rest);
    /// Brings the click targets up to date for one display type, 5 to 8, and keeps what was seen (the sequence's thread).
    /// @return the text that the balloon must show now; empty for none
    QString getDisplayStatusByType(const Work &work, int type);

    /// @return whether a sequence runs or has been asked for
    bool startDisplayFlowing() const;
    /// @return whether the last sequence has run to its end
    bool statusDisplayFlowFinishFlag() const { return statusDisplayFlowFinishFlag_ || !startDisplayFlowing(); }
    /// @return whether there is no device whose news could be told
    bool stopProcModemStatus() const { return stopProcModemStatus_; }

    /// @return the display types whose news stood when they were evaluated last (main thread, when no work is under way)
    QList<int> seenTypes() const { return m_previous.types(); }
    /// A device became ready: its news may be told (main thread, when no work is under way).
    /// @param seenTypes  those of whose news it has been told already
    void resetForReadyDevice(const QList<int> &seenTypes = {});
    /// The device is gone: what is shown of it ends, and nothing has been shown of the next one (main thread, when no work
    /// is under way).
    void resetForStop();

private:
    bool isFlowing(Clock::TimePoint now) const; ///< with the mutex held, as the next two
    void begin(Clock::TimePoint now);
    Rest restAt(Clock::TimePoint now) const;
    /// Begins a sequence unless one runs, and a thread when that has something to tell.
    void start(const Work &work);
    /// The same without the thread (while attached). @return what is to be told by a thread; nothing to tell has no types
    Rest restToTell(const Work &work);
    void endSequence();
    bool hasNews(const StatusSnapshot &snapshot, std::span<const int> types) const;
    /// Evaluates one display type of @p snapshot (while attached).
    NewsEffect evaluate(StatusSnapshot snapshot, int type);
    /// One step of the sequence: shows what is new for one display type, then waits.
    /// @return the image that stands for the type's news; empty for none
    QString displayNews(const Work &work, int type);
    BalloonExtras extrasOf(const StandingNews &news, const QString &image, int type) const;
    /// Shows the balloon of @p effect, and waits until it is on the screen. @return whether it came there
    bool showBalloon(const Work &work, const std::stop_token &deviceGone, const NewsEffect &effect, int type);
    /// Closes the balloon, and waits until it is closed.
    void closeBalloon(const std::stop_token &deviceGone);
    /// Tells the image, unless it is the last that was told (while attached).
    void ask(const Work &work, const QString &image);
    /// Tells the image and the click target that the sequence has led to (while attached).
    /// @param image  empty leaves it as it is
    void showEnd(const Work &work, const QString &image);
    void forgetShown();
    std::stop_token deviceGone() const;
    void pause(const std::stop_token &stop, std::chrono::seconds duration);

    const Dependencies m_with;
    const Callbacks m_callbacks;
    mutable std::mutex m_mutex; ///< guards the next four
    bool startDisplayFlowing_ = false;
    Clock::TimePoint m_emptySequenceEnds{}; ///< when the sequence is over if it has nothing to tell
    bool m_hasThread = false; ///< the sequence that runs has a thread
    std::stop_source m_deviceGone; ///< a second ready report of the same device does not cut a balloon short
    std::atomic<bool> statusDisplayFlowFinishFlag_{true};
    std::atomic<bool> stopProcModemStatus_{true};
    // Touched on behalf of the present attachment only.
    PreviousNews m_previous;
    bool m_overrunTold = false; ///< since the last page: what is left counts as its magnitude until the next one
    QString m_image; ///< the last image that was told; empty for none
    std::optional<bool> m_toldClick; ///< whether the click opens the firmware page, as last told; nil after news
};

} // namespace tarvo
