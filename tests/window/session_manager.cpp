#include "tests/window/session_manager.hpp"

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>
#include <poll.h>

namespace kelmar::test {

struct SessionManager::State {
    int listenerCount = 0;
    IceListenObj* listeners = nullptr;
    std::vector<IceConn> connections;
    SmsConn member = nullptr;
    Answer answer = Answer::none;
    bool refused = false; ///< the member wants the session to go on
};

namespace {

using State = SessionManager::State;

State& stateOf(SmPointer pointer) {
    return *static_cast<State*>(pointer);
}

Bool letIn(char* /*host*/) {
    return True;
}

void forget(State& state) {
    if (state.member != nullptr) {
        SmsCleanUp(std::exchange(state.member, nullptr));
    }
}

Status registerClient(SmsConn client, SmPointer state, char* previousId) {
    std::free(previousId);
    stateOf(state).member = client;
    std::array<char, 8> id{"kelmar"};
    SmsRegisterClientReply(client, id.data());
    return 1;
}

void interactRequest(SmsConn client, SmPointer /*state*/, int /*dialog*/) {
    SmsInteract(client);
}

void interactDone(SmsConn client, SmPointer state, Bool cancel) {
    if (cancel != False) {
        stateOf(state).refused = true;
        SmsShutdownCancelled(client);
    }
}

void saveYourselfRequest(SmsConn /*client*/, SmPointer /*state*/, int /*type*/, Bool /*shutdown*/,
                         int /*style*/, Bool /*fast*/, Bool /*global*/) {}

void phase2Request(SmsConn client, SmPointer /*state*/) {
    SmsSaveYourselfPhase2(client);
}

void saveYourselfDone(SmsConn client, SmPointer state, Bool /*success*/) {
    stateOf(state).answer =
        stateOf(state).refused ? SessionManager::Answer::refused : SessionManager::Answer::agreed;
    if (!stateOf(state).refused) {
        SmsSaveComplete(client);
    }
}

void closeConnection(SmsConn /*client*/, SmPointer state, int count, char** reasons) {
    SmFreeReasons(count, reasons);
    forget(stateOf(state));
}

void setProperties(SmsConn /*client*/, SmPointer /*state*/, int count, SmProp** properties) {
    for (int index = 0; index < count; ++index) {
        SmFreeProperty(properties[index]);
    }
    std::free(properties);
}

void deleteProperties(SmsConn /*client*/, SmPointer /*state*/, int count, char** names) {
    for (int index = 0; index < count; ++index) {
        std::free(names[index]);
    }
    std::free(names);
}

void getProperties(SmsConn client, SmPointer /*state*/) {
    SmsReturnProperties(client, 0, nullptr);
}

Status newClient(SmsConn /*client*/, SmPointer state, unsigned long* mask, SmsCallbacks* callbacks,
                 char** /*reason*/) {
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
            SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
            SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    callbacks->register_client = {registerClient, state};
    callbacks->interact_request = {interactRequest, state};
    callbacks->interact_done = {interactDone, state};
    callbacks->save_yourself_request = {saveYourselfRequest, state};
    callbacks->save_yourself_phase2_request = {phase2Request, state};
    callbacks->save_yourself_done = {saveYourselfDone, state};
    callbacks->close_connection = {closeConnection, state};
    callbacks->set_properties = {setProperties, state};
    callbacks->delete_properties = {deleteProperties, state};
    callbacks->get_properties = {getProperties, state};
    return 1;
}

/// A program that is gone is no error of the session's.
void lost(IceConn connection) {
    IceSetShutdownNegotiation(connection, False);
    IceCloseConnection(connection);
}

bool isReadable(int descriptor) {
    pollfd end{descriptor, POLLIN, 0};
    return ::poll(&end, 1, 0) > 0;
}

} // namespace

SessionManager::SessionManager() : state_(std::make_unique<State>()) {
    std::array<char, 256> error{};
    const int room = static_cast<int>(error.size());
    IceSetIOErrorHandler([](IceConn) {});
    if (SmsInitialize("Kelmar", "1", newClient, state_.get(), letIn, room, error.data()) == 0 ||
        IceListenForConnections(&state_->listenerCount, &state_->listeners, room, error.data()) ==
            0) {
        throw std::runtime_error(error.data());
    }
    for (int index = 0; index < state_->listenerCount; ++index) {
        IceSetHostBasedAuthProc(state_->listeners[index], letIn);
    }
}

SessionManager::~SessionManager() {
    forget(*state_);
    for (_IceConn* const connection : state_->connections) {
        lost(connection);
    }
    IceFreeListenObjs(state_->listenerCount, state_->listeners);
}

std::string SessionManager::address() const {
    char* const list = IceComposeNetworkIdList(state_->listenerCount, state_->listeners);
    std::string address(list);
    std::free(list);
    return address;
}

void SessionManager::serve() {
    for (int index = 0; index < state_->listenerCount; ++index) {
        if (isReadable(IceGetListenConnectionNumber(state_->listeners[index]))) {
            IceAcceptStatus status{};
            if (_IceConn* const connection =
                    IceAcceptConnection(state_->listeners[index], &status)) {
                state_->connections.push_back(connection);
            }
        }
    }
    std::erase_if(state_->connections, [this](IceConn connection) {
        while (isReadable(IceConnectionNumber(connection))) {
            const IceProcessMessagesStatus status =
                IceProcessMessages(connection, nullptr, nullptr);
            if (status == IceProcessMessagesIOError) {
                forget(*state_);
                lost(connection);
            }
            if (status != IceProcessMessagesSuccess) {
                return true;
            }
        }
        return false;
    });
}

bool SessionManager::hasMember() const {
    return state_->member != nullptr;
}

void SessionManager::askToEnd() {
    state_->answer = Answer::none;
    state_->refused = false;
    SmsSaveYourself(state_->member, SmSaveBoth, True, SmInteractStyleAny, False);
}

SessionManager::Answer SessionManager::answer() const {
    return state_->answer;
}

} // namespace kelmar::test
