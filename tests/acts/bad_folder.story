vorlane-console: The install folder FOLDER/data/vorlane can't be written: Not a directory
vorlane-console: The install folder FOLDER/data/vorlane can't be written: Vorlane.ini is not a file
vorlane-console: The install folder FOLDER/data/vorlane can't be written: English.LNG is not a file
