with heads (id, name) as (
  select EmployeeID, LastName from Employees where LastName in ('O''Hara', 'Dell''Orto')
)
select h.name, e.FirstName || ' ' || e.LastName as person, e.JobTitle, e.HireDate
from heads as h, Employees as e
where e.ReportsTo = h.id
order by h.name, person
