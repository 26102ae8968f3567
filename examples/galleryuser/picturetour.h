#pragma once

class ScriptedUser;

// Pictures from files and to files: nothing is lost unasked, and a file has what the
// window shows. Then what is dragged in the picture, and the picture itself.
void tourPictures(ScriptedUser &user);
