# Sources of the recognizer (speech/).
