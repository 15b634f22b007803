Opened apartment.dxf
; drawing: samples/apartment.dxf
; Expressions over several lines, the host's objects from Lisp, errors that don't end the session in a dialog.
Command: (setq doc (vla-get-activedocument
(_>   (vlax-get-acad-object)))
#<VLA-OBJECT>
Command: (vlax-get doc 'Name)
"apartment.dxf"
Command: (vlax-get (vlax-get doc 'Blocks) 'Count)
24
Command: !ZOL101
nil
Command: (defun tri (n) (if (= n 0) 0 (+ n (tri (1- n)))))
TRI
Command: (tri 100)
5050
; the current layer and other variables of the drawing; new entities go by them, and each line is one step back
Command: (list (getvar "CLAYER") (getvar "INSUNITS") (getvar "DIMSCALE") (getvar "NOSUCH"))
("0" 6 1.0 nil)
Command: (setvar "CLAYER" "murs")
"murs"
Command: (setvar "CMDECHO" 0)
0
Command: (vlax-invoke (vla-get-ModelSpace doc) 'AddLine '(0 0 0) '(1 0 0))
#<VLA-OBJECT>
Command: (setq line (vlax-invoke (vla-get-ModelSpace doc) 'AddLine '(0 0 0) '(2 0 0)))
#<VLA-OBJECT>
Command: (list (getvar "clayer") (vlax-get line 'Layer))
("MURS" "MURS")
Command: U
Undone.
Command: U
Undone.
Command: U
Undone.
Command: (getvar "CLAYER")
"0"
Command: (vl-catch-all-error-message (vl-catch-all-apply 'setvar '("CLAYER" "NO_LAYER")))
"Automation Error. Key not found: layer NO_LAYER"
