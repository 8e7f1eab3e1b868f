#include "platform/script/script_shell.hpp"

#include "platform/script/protocol.hpp"

namespace quittika {

void ScriptShell::open(const std::string& document) {
    opened_.push_back(protocol::encode(document));
}

void ScriptShell::mail(const MailMessage& message) {
    opened_.push_back("mail|" + protocol::field(message.to) + '|' + protocol::field(message.subject) + '|' +
                      protocol::field(message.attachment));
}

} // namespace quittika
