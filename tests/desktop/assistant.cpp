// SPDX-License-Identifier: MIT
//
// Assistive technology in one program: a client of AT-SPI that knows nothing of the program it looks at.
// "assistant PID list": each object that is on the screen: ROLE|NAME|DESCRIPTION|focusable or not|actions.
//
// "assistant PID focused": the one that has the focus, in the same words.
//
// "assistant PID press NAME": performs the main action of the object of that name, shown or in a menu.
//
// "assistant PID type NAME TEXT": replaces the text of the object of that name.
//
// "assistant PID await NAME": waits until an object of that name is on the screen.
//
// "assistant PID await NAME checked|unchecked": waits until the box of that name is so.
//
// "assistant PID place NAME": the middle of the object of that name on the screen, "X Y".
//
// Exit status 1 where there is no such object, after a moment of waiting for it.

#include <atspi/atspi.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <thread>

namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
using Object = std::unique_ptr<AtspiAccessible, Unref>;

std::string take(gchar* text) {
    std::string result = text == nullptr ? "" : text;
    g_free(text);
    return result;
}

std::string nameOf(const Object& object) { return take(atspi_accessible_get_name(object.get(), nullptr)); }
std::string roleOf(const Object& object) {
    return take(atspi_accessible_get_role_name(object.get(), nullptr));
}
std::string descriptionOf(const Object& object) {
    return take(atspi_accessible_get_description(object.get(), nullptr));
}

bool hasState(const Object& object, AtspiStateType state) {
    const std::unique_ptr<AtspiStateSet, Unref> states(atspi_accessible_get_state_set(object.get()));
    return states && atspi_state_set_contains(states.get(), state) != 0;
}

std::string actionsOf(const Object& object) {
    const std::unique_ptr<AtspiAction, Unref> action(atspi_accessible_get_action_iface(object.get()));
    std::string names;
    const int count = action ? atspi_action_get_n_actions(action.get(), nullptr) : 0;
    for (int i = 0; i < count; ++i)
        names += take(atspi_action_get_action_name(action.get(), i, nullptr)) + " ";
    return names;
}

/// Calls for the object and all below it until one call answers true.
bool walk(const Object& object, const std::function<bool(const Object&)>& visit) {
    if (visit(object)) return true;
    const int count = atspi_accessible_get_child_count(object.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        const Object child(atspi_accessible_get_child_at_index(object.get(), i, nullptr));
        if (child && walk(child, visit)) return true;
    }
    return false;
}

/// One that has windows: what the toolkit loads of another may be there without any.
Object program(guint pid) {
    const Object desktop(atspi_get_desktop(0));
    const int count = atspi_accessible_get_child_count(desktop.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        Object child(atspi_accessible_get_child_at_index(desktop.get(), i, nullptr));
        if (child && atspi_accessible_get_process_id(child.get(), nullptr) == pid &&
            atspi_accessible_get_child_count(child.get(), nullptr) > 0)
            return child;
    }
    return nullptr;
}

void print(const Object& object) {
    std::cout << roleOf(object) << '|' << nameOf(object) << '|' << descriptionOf(object) << '|'
              << (hasState(object, ATSPI_STATE_FOCUSABLE) ? "focusable" : "") << '|' << actionsOf(object)
              << '\n';
}

bool list(const Object& root) {
    walk(root, [](const Object& object) {
        if (hasState(object, ATSPI_STATE_SHOWING)) print(object);
        return false;
    });
    return true;
}

/// The toolkit says so of what is current in a list or among tabs also while another object has the focus.
bool hasFocus(const Object& object) {
    if (!hasState(object, ATSPI_STATE_FOCUSED) || !hasState(object, ATSPI_STATE_SHOWING)) return false;
    if (roleOf(object) != "list item" && roleOf(object) != "page tab") return true;
    const Object all(atspi_accessible_get_parent(object.get(), nullptr));
    return all && hasState(all, ATSPI_STATE_FOCUSED);
}

/// The innermost: a list has the focus together with one of its lines.
bool printFocused(const Object& root) {
    Object focused;
    walk(root, [&focused](const Object& object) {
        if (!hasFocus(object)) return false;
        focused.reset(static_cast<AtspiAccessible*>(g_object_ref(object.get())));
        return false;
    });
    if (focused) print(focused);
    return static_cast<bool>(focused);
}

/// The first action is the main one; objects whose only action is to get the focus have none.
bool press(const Object& object) {
    const std::unique_ptr<AtspiAction, Unref> action(atspi_accessible_get_action_iface(object.get()));
    if (!action || atspi_action_get_n_actions(action.get(), nullptr) == 0) return false;
    if (take(atspi_action_get_action_name(action.get(), 0, nullptr)) == "SetFocus") return false;
    return atspi_action_do_action(action.get(), 0, nullptr) != 0;
}

bool pressNamed(const Object& root, const std::string& name) {
    return walk(root, [&name](const Object& object) {
        // A closed menu's items can be chosen all the same.
        const bool isThere = hasState(object, ATSPI_STATE_SHOWING) || roleOf(object) == "menu item";
        return isThere && nameOf(object) == name && press(object);
    });
}

bool typeNamed(const Object& root, const std::string& name, const char* text) {
    return walk(root, [&name, text](const Object& object) {
        if (nameOf(object) != name || !hasState(object, ATSPI_STATE_SHOWING)) return false;
        const std::unique_ptr<AtspiEditableText, Unref> field(
            atspi_accessible_get_editable_text_iface(object.get()));
        return field && atspi_editable_text_set_text_contents(field.get(), text, nullptr) != 0;
    });
}

bool printPlaceOf(const Object& root, const std::string& name) {
    return walk(root, [&name](const Object& object) {
        if (nameOf(object) != name || !hasState(object, ATSPI_STATE_SHOWING)) return false;
        const std::unique_ptr<AtspiComponent, Unref> component(
            atspi_accessible_get_component_iface(object.get()));
        if (!component) return false;
        const std::unique_ptr<AtspiRect, decltype(&g_free)> place(
            atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr), g_free);
        std::cout << place->x + place->width / 2 << ' ' << place->y + place->height / 2 << '\n';
        return true;
    });
}

bool isThere(const Object& root, const std::string& name) {
    return walk(root, [&name](const Object& object) {
        return nameOf(object) == name && hasState(object, ATSPI_STATE_SHOWING);
    });
}

bool isBox(const Object& root, const std::string& name, bool isChecked) {
    return walk(root, [&name, isChecked](const Object& object) {
        return nameOf(object) == name && hasState(object, ATSPI_STATE_SHOWING) &&
               hasState(object, ATSPI_STATE_CHECKED) == isChecked;
    });
}

bool perform(guint pid, int argc, char** argv) {
    const Object root = program(pid);
    if (!root) return false;
    const std::string command = argv[2];
    if (command == "list") return list(root);
    if (command == "focused") return printFocused(root);
    if (command == "place" && argc == 4) return printPlaceOf(root, argv[3]);
    if (command == "press" && argc == 4) return pressNamed(root, argv[3]);
    if (command == "await" && argc == 4) return isThere(root, argv[3]);
    if (command == "await" && argc == 5) return isBox(root, argv[3], std::string(argv[4]) == "checked");
    return command == "type" && argc == 5 && typeNamed(root, argv[3], argv[4]);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return 2;
    if (atspi_init() != 0) return 2;
    const auto pid = static_cast<guint>(std::strtoul(argv[1], nullptr, 10));
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!perform(pid, argc, argv)) {
        if (std::chrono::steady_clock::now() > deadline) return 1;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return 0;
}
