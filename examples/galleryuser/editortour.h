#pragma once

class ScriptedUser;

// Every editor of every page, each in several ways; each is one step to undo.
void tourEditors(ScriptedUser &user);
