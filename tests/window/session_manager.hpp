#pragma once

#include <memory>
#include <string>
#include <vector>

namespace kelmar::test {

/// A desktop's session, which ends when everybody in it agrees; see xsmp(7), the X session
/// management protocol.
class SessionManager {
public:
    SessionManager();
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;
    ~SessionManager();

    /// What programs find it by, as in SESSION_MANAGER.
    [[nodiscard]] std::string address() const;

    /// Does what programs ask of it; to be called while they run.
    void serve();

    [[nodiscard]] bool hasMember() const;

    /// Asks the programs whether the session may end.
    void askToEnd();

    enum class Answer { none, agreed, refused };

    /// What a program has answered to the last question.
    [[nodiscard]] Answer answer() const;

    struct State;

private:
    std::unique_ptr<State> state_;
};

} // namespace kelmar::test
