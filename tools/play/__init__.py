"""Plays the game as a person does.

`game` plays the program in a real window on a `screen` of its own; `page` and `drivers` play the page that a `server`
hands out in browsers. The tests, the benchmark of the page and the scripts beside this folder use them.
"""
