# Sources of the scoring (speech/).
