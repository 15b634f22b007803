vorlane-console: The install folder FOLDER/data/vorlane can't be written: English.LNG is not a file
