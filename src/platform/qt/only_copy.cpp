#include "platform/qt/only_copy.h"

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QWindow>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <span>

namespace onze {

namespace {

constexpr const char* kToken =
    "XDG_ACTIVATION_TOKEN";  // the right to come to the front, given to what is started
constexpr char kNoAnswer = 0;
constexpr char kShown = 'y';
constexpr char kRefused = 'n';
constexpr int kPatienceS = 60;
constexpr useconds_t kPauseUs = 10'000;

// Where all users write into one folder they share one copy, else each has his own.
std::string NameFor(const DataFolders& folders) {
    const std::string name = "onze-tables-" + folders.key;
    return TakesFiles(folders.datas) ? name : name + "-" + std::to_string(getuid());
}

template <class Call>
int OnAddress(Call call, int socket, const std::string& name) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + 1, name.data(), name.size());  // a leading zero: no file
    return call(socket, reinterpret_cast<const sockaddr*>(&address),
                static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size()));
}

class Connection {
  public:
    Connection(int socket, time_t patience) : socket_(socket) {
        const timeval limit{patience, 0};
        setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    }
    ~Connection() { close(socket_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    int socket() const { return socket_; }
    void Send(std::span<const char> bytes) const { send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL); }
    ssize_t Receive(std::span<char> bytes) const { return recv(socket_, bytes.data(), bytes.size(), 0); }
    bool IsOfThisUser() const {
        ucred peer{};
        socklen_t size = sizeof peer;
        return getsockopt(socket_, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
    }

  private:
    const int socket_;
};

void ShowWindows(const char* token) {
    if (*token) qputenv(kToken, token);
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        if (!window->isVisible()) continue;
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
        window->raise();
        window->requestActivate();
    }
}

}  // namespace

OnlyCopy::OnlyCopy(const DataFolders& folders) : name_(NameFor(folders)) {}

OtherCopy OnlyCopy::Start() {
    for (;;) {
        if (Listen()) return OtherCopy::kNone;
        errno = 0;
        switch (Ask()) {
            case kShown:
                return OtherCopy::kShown;
            case kRefused:
                return OtherCopy::kOfAnotherUser;
            default:
                if (errno == EAGAIN) return OtherCopy::kSilent;
        }
        usleep(kPauseUs);  // the other copy has just started, or just ended
    }
}

// A system without such sockets has no second copies to tell.
bool OnlyCopy::Listen() {
    socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (OnAddress(bind, socket_, name_) != 0 && errno == EADDRINUSE) {
        close(socket_);
        return false;
    }
    listen(socket_, SOMAXCONN);
    return true;
}

char OnlyCopy::Ask() const {
    const Connection other(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0), kPatienceS);
    if (OnAddress(connect, other.socket(), name_) != 0) return kNoAnswer;
    const char* const token = std::getenv(kToken);
    const std::string line = std::string(token ? token : "") + '\n';
    other.Send(line);
    char answer = kNoAnswer;
    other.Receive({&answer, 1});
    return answer;
}

void OnlyCopy::ShowWhenAsked() {
    notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { Answer(); });
}

void OnlyCopy::Answer() const {
    const Connection asker(accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC), 1);
    std::array<char, 1024> line{};
    asker.Receive(std::span(line).first(line.size() - 1));
    line[std::strcspn(line.data(), "\n")] = '\0';
    const bool asked = asker.IsOfThisUser();
    if (asked) ShowWindows(line.data());
    asker.Send({asked ? &kShown : &kRefused, 1});
}

}  // namespace onze
