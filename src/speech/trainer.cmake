# Sources of the trainer (speech/).
