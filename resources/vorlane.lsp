;;; Vorlane: the commands VNLABEL, VNREPLACE, VNEXTRACT, VNINSERT, VNHELP and VNABOUT.
;;;
;;; Each puts its code into the symbol ZOL101, creates the component and hands it the drawing. The component is
;;; released also when it fails, since it saves its settings as it goes.

(vl-load-com)

(defun vorlane-run (code / component outcome)
  (setq ZOL101 code)
  (setq component
    (vl-catch-all-apply
      'vla-GetInterfaceObject
      (list (vlax-get-acad-object) "Vorlane.VnObj0100")))
  (if (vl-catch-all-error-p component)
    (vorlane-tell component)
    (progn
      (setq outcome
        (vl-catch-all-apply
          '(lambda ()
             (vlax-invoke-method component 'Exec (vla-get-ActiveDocument (vlax-get-acad-object))))))
      (vlax-release-object component)
      (if (vl-catch-all-error-p outcome) (vorlane-tell outcome))))
  (princ))

(defun vorlane-tell (failure)
  (princ (strcat "\nVorlane: " (vl-catch-all-error-message failure) "\n")))

(defun C:VNLABEL () (vorlane-run "0"))
(defun C:VNREPLACE () (vorlane-run "1"))
(defun C:VNEXTRACT () (vorlane-run "2"))
(defun C:VNINSERT () (vorlane-run "3"))
(defun C:VNHELP () (vorlane-run "4"))
(defun C:VNABOUT () (vorlane-run "5"))

(princ)
