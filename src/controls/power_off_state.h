// Whether the automatic power-off is armed.
#pragma once

namespace corvane {

struct PowerOffState {
    int vqAPO = 0;  // 1 while it is armed
};

}  // namespace corvane
