#pragma once

/// Layout lengths are in twips: 1440 to the inch at 96 dots, so 15 to a pixel.
constexpr int kTwipsPerPixel = 15;
constexpr double kTwipsPerPoint = 20;
constexpr int pixels(int twips) {
  return twips / kTwipsPerPixel;
}
constexpr int twips(int pixelCount) {
  return pixelCount * kTwipsPerPixel;
}
