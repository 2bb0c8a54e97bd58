// Any bytes are no message, or one that is written again byte for byte.

#include "fuzztarget.h"
#include "message.h"

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    Message message{"kept", "f()", {}};
    if (!message_Parse(bytes.constData(), bytes.size(), &message)) {
        require(message.address == "kept");
        return 0;
    }
    require(message_MakeFromValues(message) == bytes);
    // Those of one text or number can be handed to the other writer, too.
    const QVariant argument = message.arguments.value(0);
    std::array<char, 0x12000> buffer;
    int made = bytes.size();
    const auto make = [&](auto value) {
        return message_Make(buffer.data(), int(buffer.size()), message.address, message.signature, value);
    };
    if (message.arguments.size() == 1 && size < buffer.size())
        made = argument.type() == QVariant::Int ? make(argument.toInt()) : make(argument.toByteArray().constData());
    require(made == bytes.size());
    return 0;
}
