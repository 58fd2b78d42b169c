// SPDX-License-Identifier: MIT
#include "platform/x11/server/ClientProcess.h"

#include <xcb/res.h>

#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

pid_t processOf(const XConnection& connection, xcb_window_t window) {
    if (!Extensions(connection).has(xcb_res_id)) return 0;
    xcb_res_client_id_spec_t wanted{};
    wanted.client = window;
    wanted.mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID;
    const auto reply =
        replyTo(connection, xcb_res_query_client_ids(connection, 1, &wanted), xcb_res_query_client_ids_reply);
    if (!reply) return 0;
    for (auto id = xcb_res_query_client_ids_ids_iterator(reply.get()); id.rem > 0;
         xcb_res_client_id_value_next(&id)) {
        if ((id.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) == 0) continue;
        if (xcb_res_client_id_value_value_length(id.data) == 0) continue;
        return static_cast<pid_t>(*xcb_res_client_id_value_value(id.data));
    }
    return 0;
}

}  // namespace x11
