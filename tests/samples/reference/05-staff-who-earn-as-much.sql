select e.FirstName || ' ' || e.LastName as name, e.JobTitle, e.Salary
from Employees as e
cross join (select Salary as enough from Employees where LastName = 'Wójcik' and FirstName = 'Łukasz') as w
where e.Salary >= w.enough and e.LeaveDate is null
order by e.Salary desc, name
