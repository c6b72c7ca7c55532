// The small pictures that stand on controls, by the names that the platform's own pictures go by.
#pragma once

namespace corvane {

enum class Image {
    none,
    NSImageNameTouchBarAudioOutputMuteTemplate,
    NSImageNameTouchBarAudioOutputVolumeHighTemplate,
    NSImageNameStatusAvailable,           // a green dot
    NSImageNameStatusPartiallyAvailable,  // a yellow dot
};

}  // namespace corvane
