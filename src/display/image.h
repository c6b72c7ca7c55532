// The small pictures on controls, under the names of the platform's own pictures.
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
