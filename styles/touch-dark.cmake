# The colours of touch.qss.in. The contrast of a text with its background is at least 4.5
# to 1, that of an edge that shows a state 3 to 1.
set(text "#e8eaed")
set(surface "#24272d")
set(accent "#4da3ff")
set(disabled_text "#989fa8")
set(field_border "#4a505a")
set(field "#131417")
set(selected_text "#0b0d10")
set(refused "#ff8a80")
set(button "#363b44")
set(hovered_button "#414751")
set(pressed_button "#1f6fc2")
set(groove "#4a505a")
set(red "#ef5350")
set(green "#4caf6d")
set(blue "#5c8df6")
set(glyphs dark) # made for a dark background
