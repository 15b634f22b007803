vorlane-console: The install folder FOLDER/data/vorlane can't be written: Not a directory
