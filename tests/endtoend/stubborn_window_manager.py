#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""A window manager that shows every window in its corner and lets none move."""
from Xlib import X
from Xlib.display import Display

display = Display()
display.screen().root.change_attributes(event_mask=X.SubstructureRedirectMask)
display.sync()
print("ready", flush=True)
while True:
    event = display.next_event()
    if event.type == X.MapRequest:
        event.window.configure(x=50, y=40)
        event.window.map()
    elif event.type == X.ConfigureRequest:
        event.window.configure(width=event.width, height=event.height)
