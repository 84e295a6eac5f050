#pragma once
// Panel layouts are measured in twips; the screen works in pixels, 15 twips each.
constexpr int kTwipsPorPixel = 15;

// To the nearest pixel.
constexpr int TwipsAPixeles(int twips)
{
    return twips >= 0 ? (twips + kTwipsPorPixel / 2) / kTwipsPorPixel
                      : -((-twips + kTwipsPorPixel / 2) / kTwipsPorPixel);
}

constexpr int PixelesATwips(int pixeles)
{
    return pixeles * kTwipsPorPixel;
}
