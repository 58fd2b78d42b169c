// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A script of all that people put into one: a handler, a loop, text in many alphabets, a pause, held keys,
/// shortcuts. It begins by emptying the field and ends by saving its text.
///
/// Not on the layouts of a Latin keyboard: Greek, Cyrillic, Hebrew, Devanagari (with marks that combine),
/// Japanese, emoji (of several characters that join, of a pair of letters), and more ideographs than a
/// keyboard has unused keys for, so that keys are given new characters while the text is typed.
namespace fieldscript {

inline constexpr const char* source = R"(property greeting : "Grüße, "

on greet(who)
	tell application "System Events"
		keystroke greeting & who & return
	end tell
end greet

tell application "System Events"
	keystroke "a" using control down
	key code 51 -- Delete
	repeat with who in {"José @ 5 €", "Ελένη", "Борис", "שלום", "नमस्ते", "日本語", "Ann 😀👩‍👩‍👧🇬🇷"}
		my greet(contents of who)
	end repeat
	delay 0.01
	keystroke "天地玄黃宇宙洪荒日月盈昃辰宿列張寒來暑往秋收冬藏閏餘成歲律呂調陽雲騰致雨露結為霜金生麗水玉出崑岡"
	keystroke return & "劍號巨闕珠稱夜光果珍李柰菜重芥薑海鹹河淡鱗潛羽翔龍師火帝鳥官人皇始制文字乃服衣裳" & return
	keystroke "wrong"
	key down shift
	repeat 5 times
		key code 123 -- left
	end repeat
	key up shift
	keystroke "right" & tab & "MiXeD" & return
	keystroke "a" using control down
	keystroke "x" using control down
	keystroke "v" using control down
	keystroke "v" using control down
	keystroke "s" using control down
end tell
)";

inline const std::string greetings =
    R"(Grüße, José @ 5 €
Grüße, Ελένη
Grüße, Борис
Grüße, שלום
Grüße, नमस्ते
Grüße, 日本語
Grüße, Ann 😀👩‍👩‍👧🇬🇷
天地玄黃宇宙洪荒日月盈昃辰宿列張寒來暑往秋收冬藏閏餘成歲律呂調陽雲騰致雨露結為霜金生麗水玉出崑岡
劍號巨闕珠稱夜光果珍李柰菜重芥薑海鹹河淡鱗潛羽翔龍師火帝鳥官人皇始制文字乃服衣裳
)";

/// What a field holds then: what was typed, twice.
inline std::string inField() {
    const std::string once = greetings + "right\tMiXeD\n";
    return once + once;
}

/// What a terminal gets, where keys select nothing and shortcuts are control characters; Delete is xterm's
/// own.
inline std::string inTerminal() {
    const std::string selectedLeft = "\x1b[1;2D";
    std::string text = "\x01\x7f" + greetings + "wrong";
    for (int i = 0; i < 5; ++i) text += selectedLeft;
    return text + "right\tMiXeD\n\x01\x18\x16\x16\x13";
}

}  // namespace fieldscript
