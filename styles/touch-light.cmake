# The colours of touch.qss.in. The contrast of a text with its background is at least 4.5
# to 1, that of an edge that shows a state 3 to 1.
set(text "#1b1d21")
set(surface "#ffffff")
set(accent "#0b5cad")
set(disabled_text "#666c75")
set(field_border "#8d95a0")
set(field "#f6f7f9")
set(selected_text "#ffffff")
set(refused "#c62828")
set(button "#e1e5ea")
set(hovered_button "#d3d9e0")
set(pressed_button "#a9cdf3")
set(groove "#c3cad3")
set(red "#d32f2f")
set(green "#2e8b50")
set(blue "#2f62d9")
set(glyphs light) # made for a light background
