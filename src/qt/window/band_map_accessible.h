// The band map for a screen reader: a list whose items are the places of the band on which the keyboard is.
#pragma once

namespace corvane {

class BandMapView;

// From now on band maps are lists to a screen reader.
void makeBandMapAccessible();

// The items of the list are others now.
void placesChanged(BandMapView& view);
// The keyboard has come to another item, which is read out.
void placeReached(BandMapView& view);

}  // namespace corvane
