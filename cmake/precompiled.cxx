// Nothing but the headers that are compiled ahead of the targets that use them.
