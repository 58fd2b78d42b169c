// SPDX-License-Identifier: MIT
#include "platform/script/run/OperationTable.h"

namespace script {

const OperationTable& operationTable() {
    static const OperationTable table = [] {
        OperationTable rows{};
        addValueOperations(rows);
        addElementOperations(rows);
        addControlOperations(rows);
        addCallOperations(rows);
        return rows;
    }();
    return table;
}

}  // namespace script
