// Questions to the server, which run beside the events of the windows.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "queue/ThreadAccess.h"

class QWidget;

namespace kwopde::dialog {

/// A question that is asked in a thread of its own. One that is destroyed is not waited for.
///
/// What comes from a server that is well is shown at once and whole: the windows wait for an answer
/// for 300 ms, or those of KWOPDE_PATIENCE (0 to 60000), before they go on without.
class Question final : public QObject {
  template <class Ask>
  using AnswerOf = std::invoke_result_t<Ask, const host::GoesOn &>;

public:
  /// Calls `ask(const host::GoesOn &)` in the thread, which reaches the server as this one does,
  /// and `answered(std::future)` with what it returned or threw in this thread: before the
  /// constructor returns when that is in time, and else as an event. `answered` may destroy the
  /// question. `ask` is told to end by its argument, and uses nothing that may be gone by then.
  template <class Ask, class Answered>
  Question(Ask ask, Answered answered) {
    using Answer = AnswerOf<Ask>;
    auto task = std::make_shared<std::packaged_task<Answer(const host::GoesOn &)>>(std::move(ask));
    auto future = std::make_shared<std::future<Answer>>(task->get_future());
    start([task = std::move(task)](const host::GoesOn &goesOn) { (*task)(goesOn); },
          [future = std::move(future), answered = std::move(answered)] {
            answered(std::move(*future));
          });
  }
  ~Question() override;

  /// Returns whether `answered` is still to be called.
  bool isOpen() const { return answered_ != nullptr; }

  /// Runs events until it is answered, with a window over `window` in which a person can cancel.
  /// Returns false when they did.
  bool wait(QWidget *window) const;

  /// Runs events until every question of the process is answered.
  static void waitForAll();

private:
  struct Shared;

  void start(std::function<void(const host::GoesOn &)> ask, std::function<void()> answered);
  void look();
  void finish();

  std::shared_ptr<Shared> shared_;
  std::future<void> thread_;
  std::function<void()> answered_;
  QTimer timer_;
};

/// Asks, and returns the answer once it is there, or throws as `ask` does; none when a person
/// cancelled, over `window`. With a null window none when it is not there in time.
template <class Ask, class Answer = std::invoke_result_t<Ask, const host::GoesOn &>>
std::optional<Answer> askAndWait(QWidget *window, Ask ask) {
  std::optional<std::future<Answer>> answer;
  const Question question(std::move(ask),
                          [&](std::future<Answer> given) { answer = std::move(given); });
  if (question.isOpen() && (!window || !question.wait(window))) return {};
  return answer->get();
}

}  // namespace kwopde::dialog
