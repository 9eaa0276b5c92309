#include "dialog/Question.h"

#include <cups/cups.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QProgressDialog>
#include <atomic>
#include <chrono>
#include <mutex>
#include <string>
#include <vector>

namespace kwopde::dialog {

namespace {

using namespace std::chrono_literals;
using Password = std::optional<std::string>;

constexpr auto kPoll = 20ms;

int openQuestions = 0;

std::chrono::milliseconds patience() {
  bool isNumber = false;
  const int given = qEnvironmentVariableIntValue("KWOPDE_PATIENCE", &isNumber);
  return isNumber && given >= 0 && given <= 60000 ? std::chrono::milliseconds(given) : 300ms;
}

bool isDone(const std::future<void> &thread) {
  return thread.wait_for(0s) == std::future_status::ready;
}

/// Keeps the thread of a question that nobody waits for until it has ended. The process does not
/// end before.
void letGo(std::future<void> thread) {
  static std::vector<std::future<void>> leaving;
  std::erase_if(leaving, isDone);
  leaving.push_back(std::move(thread));
}

}  // namespace

/// What the thread and the windows share.
struct Question::Shared {
  std::atomic<bool> isWanted{true};
  std::mutex mutex;
  std::packaged_task<Password()> passwordQuestion;  // invalid when there is none

  std::packaged_task<Password()> takePasswordQuestion() {
    const std::lock_guard lock(mutex);
    return std::move(passwordQuestion);
  }

  /// Asks for a password where the windows are, and waits. For the thread.
  Password password(const char *prompt, http_t *http, const char *method, const char *resource) {
    std::packaged_task<Password()> task([=]() -> Password {
      const char *const given = cupsGetPassword2(prompt, http, method, resource);
      return given ? Password(given) : std::nullopt;
    });
    std::future<Password> answer = task.get_future();
    {
      const std::lock_guard lock(mutex);
      passwordQuestion = std::move(task);
    }
    while (answer.wait_for(kPoll) != std::future_status::ready)
      // One that is being answered uses the connection, and has to be waited for.
      if (!isWanted && takePasswordQuestion().valid()) return {};
    return answer.get();
  }
};

void Question::start(std::function<void(const host::GoesOn &)> ask,
                     std::function<void()> answered) {
  shared_ = std::make_shared<Shared>();
  answered_ = std::move(answered);
  ++openQuestions;
  const auto run = [ask = std::move(ask), shared = shared_, access = host::ThreadAccess()] {
    Password password;
    const host::ThreadAccess::Password onPassword = [&](const char *prompt, http_t *http,
                                                        const char *method, const char *resource) {
      password = shared->password(prompt, http, method, resource);
      return password ? password->c_str() : nullptr;
    };
    access.use(onPassword);
    ask([&] { return shared->isWanted.load(); });
  };
  // Without memory for a thread it runs here, once it is waited for.
  thread_ = std::async(std::launch::async | std::launch::deferred, run);
  if (thread_.wait_for(patience()) == std::future_status::deferred) thread_.wait();
  if (isDone(thread_)) return finish();
  connect(&timer_, &QTimer::timeout, this, &Question::look);
  timer_.start(kPoll);
}

Question::~Question() {
  if (!isOpen()) return;
  --openQuestions;
  shared_->isWanted = false;
  letGo(std::move(thread_));
}

void Question::look() {
  const QPointer<Question> self(this);
  if (auto ask = shared_->takePasswordQuestion(); ask.valid()) ask();
  if (self && isOpen() && isDone(thread_)) finish();
}

void Question::finish() {
  timer_.stop();
  --openQuestions;
  const auto answered = std::exchange(answered_, nullptr);
  answered();
}

bool Question::wait(QWidget *window) const {
  // The window may be gone by the end, and takes it along.
  const QPointer<QProgressDialog> progress = new QProgressDialog(window);
  progress->setLabelText(
      QCoreApplication::translate("kwopde::dialog::Printer", "Asking the printer…"));
  progress->setRange(0, 0);
  progress->setWindowModality(Qt::WindowModal);
  progress->setMinimumDuration(0);
  progress->show();
  while (isOpen() && progress && !progress->wasCanceled())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  delete progress;
  return !isOpen();
}

void Question::waitForAll() {
  while (openQuestions > 0) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace kwopde::dialog
