#pragma once

#include "base/MessageSink.h"
#include "base/ShowMsg.h"

#include <QList>
#include <QString>

// A message sink for tests: records every box and answers with a preset button. While it
// lives it is the sink of the process.
class RecordingMessageSink final : public MessageSink {
public:
    struct Call {
        QString text;
        int flags;
        QString title;
    };

    explicit RecordingMessageSink(int answer = 1) : answer_(answer) { setMessageSink(this); }
    ~RecordingMessageSink() override { setMessageSink(nullptr); }
    RecordingMessageSink(const RecordingMessageSink&) = delete;
    RecordingMessageSink& operator=(const RecordingMessageSink&) = delete;

    int show(const QString& text, int flags, const QString& title) override {
        calls_.append(Call{text, flags, title});
        return answer_;
    }

    void setAnswer(int answer) { answer_ = answer; }
    const QList<Call>& calls() const { return calls_; }
    const Call& last() const { return calls_.last(); }
    void clear() { calls_.clear(); }

private:
    int answer_;
    QList<Call> calls_;
};
