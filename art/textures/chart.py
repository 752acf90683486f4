#!/usr/bin/python3
"""The chart that hangs in rooms: the one of the game, as an image map."""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'gui'))
sys.dont_write_bytecode = True
from chart import H, W, mail_route

from paint import svg

body, defs = mail_route()
svg('chart', W, H, body, defs)
