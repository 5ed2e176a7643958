// Replaced by the first source of this folder.
