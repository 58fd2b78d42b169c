// SPDX-License-Identifier: MIT
#pragma once

class Camera;

/// The panels, the overlay, the prompt, the splash and the control window.
void takePanels(Camera& camera);
/// Alerts, sheets, scripts' dialogs and file panels.
void takeDialogs(Camera& camera);
/// The status menu in each state, its submenus and the status icons.
void takeMenus(Camera& camera);
