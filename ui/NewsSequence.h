#pragma once

#include "attachment/Attachment.h"

#include <QString>

#include <atomic>
#include <chrono>

namespace tarvo {

class BalloonPresenter;
class Clock;
class SharedSnapshot;
class StatusIcon;
class StepQueue;
class SystemLog;
class UpdateAlert;
class WebPages;
struct DisplayStatus;

/// Tells the user the news, one after the other, by icon, tool tip and balloon, and knows what was shown before.
///
/// A sequence runs on a display thread of its own, for one modem; at most one runs at a time.
class NewsSequence {
public:
    /// What the sequence shows the news with. All of it outlives the sequence, and is used on the main thread only, but
    /// for the snapshot, the pages' click targets, the clock and the log.
    struct Surroundings {
        SharedSnapshot &snapshot;
        WebPages &pages;
        StatusIcon &icon;
        BalloonPresenter &balloon;
        UpdateAlert &updateAlert;
        StepQueue &mainThread;
        Clock &clock;
        SystemLog &systemLog;
    };

    /// Nothing has been shown, and there is no device yet.
    explicit NewsSequence(const Surroundings &surroundings);

    /// The pointer came over the icon: starts a sequence unless one runs (main thread).
    /// @param work  for the modem that is there; null when there is none, and so nothing to tell
    void mouseEnteredHandle(const Work *work);
    /// Starts a sequence unless one runs (any thread).
    void startDisPlayUIStatusThread(const Work &work);
    /// The sequence itself (display thread).
    void displayUIStatus(const Work &work);
    /// Brings icon, tip and click targets up to date for one display type, 5 to 8 (display thread).
    /// @return the text that the balloon must show now; empty for none
    QString getDisplayStatusByType(const Work &work, int type);

    /// @return whether a sequence runs or has been asked for
    bool startDisplayFlowing() const { return startDisplayFlowing_; }
    /// @return whether the last sequence has run to its end
    bool statusDisplayFlowFinishFlag() const { return statusDisplayFlowFinishFlag_; }
    /// @return whether there is no device whose news could be told
    bool stopProcModemStatus() const { return stopProcModemStatus_; }

    /// A device became ready: its news may be told (main thread, when no work is under way).
    void resetForReadyDevice();
    /// The device is gone: nothing has been shown of the next one (main thread, when no work is under way).
    void resetForStop();

private:
    /// What each item was when it was last evaluated. Touched on behalf of the present attachment only.
    struct PreviousNews {
        bool previousHaveUnReadSmsStatus_ = false;
        bool previousHaveNewSmsStatus_ = false;
        bool previousRoamOnStatus_ = false;
        bool previousHaveNewVersion_ = false;
        bool previousNetWorkStatus_ = false;
        bool previousHaveDateLimitReached_ = false;
        bool previousHaveDateLimitExceeded_ = false;
        bool previousHaveDateLimitExceededForThreedays_ = false;
    };

    static bool PreviousNews::*previousOf(int type);
    void start(const Work &work);
    void endSequence();
    /// One step of the sequence: shows what is new for one display type, then waits.
    void displayNews(const Work &work, int type);
    void closeBalloon(const QString &text);
    void show(const DisplayStatus &status);
    void pause(const Work &work, std::chrono::seconds duration);

    const Surroundings m_with;
    std::atomic<bool> startDisplayFlowing_{false};
    std::atomic<bool> statusDisplayFlowFinishFlag_{true};
    std::atomic<bool> stopProcModemStatus_{true};
    PreviousNews m_previous;
};

} // namespace tarvo
