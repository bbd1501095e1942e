#pragma once

namespace onze {

class Apprendre;
struct PictureClip;

// Both draw a table, 2 to 12, on the learning screen, with pictures cut from the strip.
void ShowTableNumber(PictureClip& anim, Apprendre& apprendre, int table);
void ShowTableProducts(PictureClip& anim, Apprendre& apprendre, int table);

}  // namespace onze
