#include "Keyboard.h"

#include "Failure.h"
#include "Reply.h"

#include <algorithm>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// Of the groups of a key only the first is sure to be the active one: plain, and with Shift.
constexpr std::size_t levels = 2;

// The characters of Latin-1 are their own keysyms, the others are marked as Unicode.
xcb_keysym_t SymbolOf(QChar character)
{
    constexpr xcb_keysym_t lastOfLatin1 = 0xff;
    constexpr xcb_keysym_t unicode = 0x01000000;
    const xcb_keysym_t code = character.unicode();
    return code <= lastOfLatin1 ? code : unicode | code;
}
} // namespace

Keyboard::Keyboard(xcb_connection_t* connection)
{
    const xcb_setup_t* setup = xcb_get_setup(connection);
    first_ = setup->min_keycode;
    const auto asked = xcb_get_keyboard_mapping(connection, first_,
                                                static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1));
    const Reply<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(connection, asked, nullptr));
    Expect(reply != nullptr && reply->keysyms_per_keycode > 0, u"a keyboard"_s);
    symbolsAKey_ = reply->keysyms_per_keycode;
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    symbols_.assign(symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(reply.get()));
}

Keyboard::Stroke Keyboard::StrokeOf(QChar character) const
{
    return Find(SymbolOf(character));
}

xcb_keycode_t Keyboard::CodeOf(Key key) const
{
    return Find(static_cast<xcb_keysym_t>(key)).Code;
}

Keyboard::Stroke Keyboard::Find(xcb_keysym_t symbol) const
{
    const std::size_t keys = symbols_.size() / symbolsAKey_;
    for (std::size_t level = 0; level < std::min(levels, symbolsAKey_); ++level)
        for (std::size_t key = 0; key < keys; ++key)
            if (symbols_[key * symbolsAKey_ + level] == symbol)
                return {static_cast<xcb_keycode_t>(first_ + key), level == 1};
    throw Failure(u"The keyboard of this screen has no key for the symbol "_s + QString::number(symbol, 16));
}

} // namespace lineforge::tour
