#include "framework/message_map.h"

namespace {
thread_local bool t_passOn = false;
} // namespace

void AfxMsgPassOn() {
    t_passOn = true;
}

bool AfxMsgTakePassOn() {
    bool passOn = t_passOn;
    t_passOn = false;
    return passOn;
}
