#pragma once

class ScriptedUser;

// Loads and saves pictures: no edit is lost without a question, and a file has the pixels
// that the window shows. Then drags rectangles in the picture, and the picture itself.
void tourPictures(ScriptedUser &user);
